#include "app/file.h"

#include "app/app.h"
#include "app/barre.h"
#include "app/finestra.h"
#include "app/menu.h"
#include "commands/prompt.h"
#include "files/comandi_file.h"
#include "files/txt_documento.h"
#include "printing/stampa.h"
#include "view/mappa.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

// A new window stands in the lists under its running number.
distipo& crea_finestra(trelvobas& bas) {
  const auto numero = static_cast<std::size_t>(bas.progrdocumento);
  if (bas.finestredocumenti.size() <= numero) bas.finestredocumenti.resize(numero + 1);
  if (bas.nomidocumenti.size() <= numero) bas.nomidocumenti.resize(numero + 1);
  bas.finestredocumenti[numero] = std::make_unique<distipo>(bas, bas.desktop.fonts(), bas.progrdocumento);
  distipo& doc = *bas.finestredocumenti[numero];
  collega(doc);
  return doc;
}

// It counts only if there is memory for it.
distipo& finestra_contata(trelvobas& bas) {
  try {
    return crea_finestra(bas);
  } catch (const std::bad_alloc&) {
    if (bas.finestredocumenti.size() > static_cast<std::size_t>(bas.progrdocumento)) bas.finestredocumenti.pop_back();
    --bas.progrdocumento;
    --bas.ndocumenti;
    throw;
  }
}

void mostra_finestra(distipo& doc) {
  const Desktop::ClientSize area = doc.bas.desktop.create_window(doc);
  doc.surface.resize(area.width, area.height);
  Form_Load(doc);
  doc.bas.desktop.show_window(doc);
  if (!doc.ridimensionato) Form_Resize(doc);
  attivata(doc.bas, doc);
}

}  // namespace

void nuovodisegno(trelvobas& bas) {
  const PointerGuard attesa(bas.desktop, pointer_hourglass);
  ++bas.progrdocumento;
  ++bas.ndocumenti;
  distipo& doc = finestra_contata(bas);
  mostra_finestra(doc);
  doc.Caption = titolo_senza_nome(bas.progrdocumento);
  memxin(doc);
  impostdistipo(doc);
  bas.nomidocumenti[static_cast<std::size_t>(bas.progrdocumento)] = doc.Caption;
  trova_disegnoattivo(doc);
  spegni_Text1(doc);
  spegni_Text2(doc);
}

void gestfile_Click(trelvobas& bas, int Index) {
  if (Index == 3) {
    if (chiudi_frame(bas)) bas.frmMain.unload();
    return;
  }
  if (bas.ndocumenti == 0) attivabarre(bas);
  nuovodisegno(bas);
  if (Index == 2) apri(bas);
}

namespace {

// Cleared also when nothing was saved: closing asks nothing then.
void togli_segno(distipo& doc) {
  doc.segno_tolto = (doc.segno_tolto || doc.cmd.modificato == 1) && doc.dis.revisione() != doc.salvata;
  doc.cmd.modificato = 0;
}

}  // namespace

void opfile_Click(distipo& doc, int Index) {
  trelvobas& bas = doc.bas;
  const PointerGuard attesa(bas.desktop, pointer_hourglass);
  switch (Index) {
    case 1:
      nuovodisegno(bas);
      break;
    case 2:
      nuovodisegno(bas);
      apri(bas);
      break;
    case 3:
      salva(bas, "Salva");
      togli_segno(doc);
      break;
    case 4:
      salva(bas, "SalvaConNome");
      togli_segno(doc);
      break;
    case 5:
      chiudi(doc);
      break;
    case 7:
      bas.desktop.show_printer();
      break;
    case 8:
      apri_stampa(doc);
      break;
    default:
      break;
  }
}

namespace {

servizifile servizi() {
  return {[](distipo& doc) { chiudi(doc); }, importa};
}

}  // namespace

void salva(trelvobas& bas, const std::string& comando) { aprisalvadisegno(bas, comando, servizi()); }

void apri(trelvobas& bas) { aprisalvadisegno(bas, "Apri", servizi()); }

}  // namespace trelvo
