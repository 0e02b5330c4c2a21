#include "files/dis_documento.h"

#include <array>

#include "commands/prompt.h"
#include "commands/zoom.h"
#include "document/trelvobas.h"
#include "files/accesso_file.h"
#include "files/dis_formato.h"
#include "files/dis_lettura.h"
#include "files/dis_scrittura.h"
#include "files/impostazioni_lette.h"
#include "files/sostituzione.h"
#include "model/tavolozza.h"
#include "view/mappa.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

// It lives as long as the document.
reccomando& scarto(distipo& doc) { return doc.cmd.comandi.front(); }

testatadis testata_di(const distipo& doc) {
  testatadis t;
  t.xminvis = doc.vista.xminvis;
  t.yminvis = doc.vista.yminvis;
  t.larghezzavis = doc.vista.larghezzavis;
  t.altezzavis = doc.vista.altezzavis;
  t.windowstate = doc.WindowState;
  t.coloresfondo = doc.imp.coloresfondo;
  t.colorepuntatore = doc.imp.colorepuntatore;
  t.statostep = doc.imp.statostep;
  t.passostep = doc.imp.passostep;
  t.statogriglia = doc.imp.statogriglia;
  t.passogriglia = doc.imp.passogriglia;
  return t;
}

void prendi_vista(distipo& doc, const testatadis& t) {
  if (t.windowstate >= window_normal && t.windowstate <= window_maximised) doc.WindowState = t.windowstate;
  if (!(t.larghezzavis > 0 && t.altezzavis > 0)) return;
  const statovista prima = doc.vista;
  doc.vista.xminvis = t.xminvis;
  doc.vista.yminvis = t.yminvis;
  doc.vista.larghezzavis = t.larghezzavis;
  doc.vista.altezzavis = t.altezzavis;
  try {
    selzoom(doc, t.xminvis, t.yminvis, t.xminvis + t.larghezzavis, t.yminvis + t.altezzavis);
  } catch (const RuntimeError&) {
    doc.vista = prima;
  }
}

// Whether it is there to its last value.
bool leggi_testata(distipo& doc, fileaperto& file, errorerimandato& errore) {
  testatadis testata = testata_di(doc);
  std::array<std::byte, lunghezza_testata> byte{};
  std::size_t letti = 0;
  errore.prova([&] {
    letti = file.leggi(byte);
    decodifica({byte.data(), letti}, testata, errore);
  });
  const bool intera = !errore.presente() && letti >= lunghezza_testata - lunghezza_slot + sizeof testata.passogriglia;
  prendi_vista(doc, testata);
  prendi_impostazioni(doc,
                      {testata.coloresfondo, testata.colorepuntatore, testata.statostep, testata.passostep,
                       testata.statogriglia, testata.passogriglia},
                      errore);
  return intera;
}

// Whether nothing of it was passed over.
bool leggi_disegno(distipo& doc, fileaperto& file, errorerimandato& errore) {
  doc.cmd.statooggetti = 0;
  doc.cmd.statotesti = 0;
  letturadis esito;
  esito.scarto = scarto(doc);
  const bool letto =
      errore.prova([&] { leggi_oggetti([&](std::span<std::byte> dove) { return file.leggi(dove); }, doc.dis, esito); });
  scarto(doc) = esito.scarto;
  if (esito.riconosciuti) doc.cmd.statooggetti = 1;
  return letto && esito.intero;
}

}  // namespace

void salvafile(distipo& doc) {
  memxin(doc);
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  sostituzione nuovo(doc.Caption, doc.impronta != impronta(doc.Caption));
  try {
    scrivi_disegno(testata_di(doc), doc.dis, scarto(doc), [&](std::span<const std::byte> dati) { nuovo.scrivi(dati); });
    nuovo.concludi();
    doc.impronta = impronta(doc.Caption);
    doc.salvata = doc.dis.revisione();
  } catch (const RuntimeError& errore) {
    throw nuovo.annotato(errore.number());
  } catch (const std::bad_alloc&) {
    throw nuovo.annotato(error_no_memory);
  }
}

void scrivi_copia(const distipo& doc, const std::string& nome) {
  reccomando scarto;
  fileaperto file(nome, fileaperto::modo::vuotato);
  scrivi_disegno(testata_di(doc), doc.dis, scarto, [&](std::span<const std::byte> dati) { file.scrivi(dati); });
  file.chiudi();
}

void leggifile(distipo& doc) { leggifile(doc, doc.Caption); }

void leggifile(distipo& doc, const std::string& sorgente) {
  const PointerGuard attesa(doc.bas.desktop, pointer_hourglass);
  const bool proprio = sorgente == doc.Caption.get();
  const std::string letto = impronta(sorgente);
  errorerimandato errore;
  bool intero = false;
  {
    fileaperto file(sorgente, fileaperto::modo::lettura);
    if (!proprio) doc.cmd.modificato = 1;
    intero = leggi_testata(doc, file, errore);
    // The zoom put the pointer back.
    doc.bas.desktop.MousePointer = pointer_hourglass;
    intero = leggi_disegno(doc, file, errore) && intero;
  }
  doc.impronta = proprio && intero ? letto : std::string();
  if (proprio) doc.salvata = doc.dis.revisione();
  doc.surface.BackColor = tavolozza(doc.imp.coloresfondo.valore);
  errore.prova([&] { redraw(doc); });
  errore.prova([&] {
    ++doc.cmd.livello;
    reiniz(doc, doc.cmd.livello);
    scrivilabel1(doc);
  });
  errore.rilancia();
}

}  // namespace trelvo
