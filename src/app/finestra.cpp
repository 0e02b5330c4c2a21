#include "app/finestra.h"

#include <algorithm>

#include "app/barre.h"
#include "app/file.h"
#include "commands/comando.h"
#include "commands/impostazioni.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "commands/zoom.h"
#include "files/comandi_file.h"
#include "files/ini.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/mappa.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

constexpr int colore_acceso = 0;
constexpr int colore_spento = 8;
constexpr int colore_segno = 10;
constexpr int colore_segno_altro = 4;

// The whole of a new drawing, and the part of it that shows first. Drawing units.
constexpr double larghezza_tutto = 500000000000;
constexpr double altezza_tutto = 300000000000;
constexpr double larghezza_iniziale = 50;
constexpr double altezza_iniziale = 20;

// Settings that cannot be read or written are told, and the window opens with what there is.
void leggi_impostazioni(distipo& doc) {
  run_event(doc.bas.desktop, [&] { leggifileini_dis(doc); });
}

void spunta_aiuti(distipo& doc) {
  doc.aiutdis(4).Checked = doc.imp.step();
  doc.aiutdis(5).Checked = doc.imp.griglia();
  doc.aiutdis(6).Checked = doc.imp.orto();
  doc.aiutdis(7).Checked = doc.imp.bordotesto == 1;
}

void vista_iniziale(distipo& doc) {
  statovista& v = doc.vista;
  v.xmindis = 0;
  v.ymindis = 0;
  v.xmaxdis = larghezza_tutto;
  v.ymaxdis = altezza_tutto;
  selzoom(doc, 0, 0, v.xmaxdis, v.ymaxdis);
  v.xmaxdis = larghezza_iniziale;
  v.ymaxdis = altezza_iniziale;
  selzoom(doc, 0, 0, v.xmaxdis, v.ymaxdis);
}

// A drawing that was saved under another name still stands in the list by the former ones. A name that another window
// has too stays in use.
void dimentica_nome(distipo& doc) {
  const auto di_altri = [&doc](const std::string& nome) {
    return std::any_of(doc.bas.finestredocumenti.begin(), doc.bas.finestredocumenti.end(), [&](const auto& finestra) {
      return finestra && finestra.get() != &doc && finestra->Caption.get() == nome;
    });
  };
  for (const std::string& suo : {doc.Caption.get(), doc.aperto_da, titolo_senza_nome(doc.numero)}) {
    if (di_altri(suo)) continue;
    std::replace(doc.bas.nomidocumenti.begin(), doc.bas.nomidocumenti.end(), suo, std::string());
  }
}

}  // namespace

void Form_Load(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  f.Label8.ForeColor = tavolozza(colore_acceso);
  f.Label9.ForeColor = tavolozza(colore_acceso);
  f.Label10.ForeColor = tavolozza(colore_spento);
  leggi_impostazioni(doc);
  applica_barre(doc);
  spunta_aiuti(doc);
  impscroll(doc);
  doc.filtri(0).Checked = true;
  doc.cmd.modificato = 0;
  doc.cmd.livello = 1;
  doc.ridimensionato = false;
  reiniz(doc, doc.cmd.livello);
  doc.cmd.modoselez = "Inters";
  doc.cmd.comandosospeso.tipo("");
  vista_iniziale(doc);
  memxin(doc);
  doc.surface.PSet(doc.surface.ScaleLeft, doc.surface.ScaleTop, 0);
}

// The walk stops at the count of open documents: a window of a higher number is not found.
void trova_disegnoattivo(distipo& doc) {
  trelvobas& bas = doc.bas;
  const int ultimo = std::min(bas.ndocumenti, static_cast<int>(bas.nomidocumenti.size()) - 1);
  for (int i = 1; i <= ultimo; ++i) {
    const std::string& nome = bas.nomidocumenti[static_cast<std::size_t>(i)];
    if (!nome.empty() && nome == doc.Caption.get()) bas.disegnoattivo = i;
  }
}

void Form_Activate(distipo& doc) {
  doc.MousePointer = pointer_own;
  trova_disegnoattivo(doc);
  scrivilabel1(doc);
  mostra_interruttori(doc);
  // Typed points are read at the scale shown: it has to be that of the document they are for.
  doc.bas.frmMain.Label3.Caption = number_text(doc.vista.rapscala);
  // It writes the settings: one that fails is told, and does not keep the window from the front.
  run_event(doc.bas.desktop, [&] { impfiltri(doc, doc.filtro.filtroattivo); });
  const bool diverso = doc.surface.ForeColor != tavolozza(colore_segno);
  doc.Shape3.BorderColor = tavolozza(diverso ? colore_segno : colore_segno_altro);
}

void Form_Deactivate(distipo& doc) {
  doc.MousePointer = pointer_default;
  if (doc.cmd.comando().empty()) return;
  abbandona_sospeso(doc);
  annullacomando(doc, doc.cmd.livello);
}

void Form_Resize(distipo& doc) {
  if (doc.bas.ndocumenti == 0) return;
  if (!doc.ridimensionato) {
    doc.ridimensionato = true;
    return;
  }
  // The picking of the print window belongs to its dialog: a right click does not start it again.
  const comando* c = comando_corrente(doc);
  if (c != nullptr && c->tipo != genere::areastampa) doc.cmd.ultimocomando = c->nome;
  con_comando_da_parte(doc, [&] { redraw(doc); });
  doc.cmd.modificato = 1;
}

void Form_QueryUnload(distipo& doc, bool& Cancel) {
  trelvobas& bas = doc.bas;
  if (doc.cmd.modificato != 1) {
    --bas.ndocumenti;
    return;
  }
  const int risposta =
      bas.desktop.message_box("Salvare le modifiche al file: \"" + doc.Caption.get() + "\"", Buttons::yes_no_cancel);
  if (risposta == answer_yes) {
    const bool nuovo = senza_nome(doc.Caption);
    Cancel = true;
    salva(bas, nuovo ? "SalvaConNome" : "Salva");
    if (!senza_nome(doc.Caption)) {
      Cancel = false;
      --bas.ndocumenti;
    }
  } else if (risposta == answer_no) {
    --bas.ndocumenti;
  } else {
    Cancel = true;
    if (bas.ndocumentichiusura != 0) {
      bas.ndocumenti = bas.ndocumentichiusura;
      bas.ndocumentichiusura = 0;
    }
  }
}

void Form_Unload(distipo& doc) {
  trelvobas& bas = doc.bas;
  if (bas.attivo() == &doc) bas.Geststamp.unload();
  if (bas.ndocumenti == 0) disattivabarre(bas);
  dimentica_nome(doc);
  bas.desktop.destroy_window(doc);
  const bool era_attivo = bas.attivo() == &doc;
  std::erase(bas.ordine, &doc);
  // Its own handler may be the one that runs: it goes when the event is over.
  bas.chiusi.push_back(std::move(bas.finestredocumenti[static_cast<std::size_t>(doc.numero)]));
  distipo* prossimo = bas.attivo();
  if (!era_attivo || prossimo == nullptr) return;
  bas.desktop.activate_window(*prossimo);
  Form_Activate(*prossimo);
}

}  // namespace trelvo
