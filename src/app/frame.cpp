#include "app/frame.h"

#include "app/app.h"
#include "app/barre.h"
#include "app/file.h"
#include "app/finestra.h"
#include "app/menu.h"
#include "commands/comando.h"
#include "commands/impostazioni.h"
#include "commands/modifica.h"
#include "commands/motore.h"
#include "files/accesso_file.h"
#include "files/comandi_file.h"
#include "files/dis_documento.h"
#include "files/recupero.h"
#include "files/txt_documento.h"
#include "view/croce.h"

namespace trelvo {

namespace {

std::string senza_virgolette(std::string nome) {
  if (nome.starts_with('"')) nome.erase(0, 1);
  if (nome.ends_with('"')) nome.pop_back();
  return nome;
}

constexpr int strumenti_file = 1;
constexpr int strumenti_disegna = 2;
constexpr int strumenti_zoom = 3;
constexpr int pulsante_bmp = 10;
constexpr int pulsante_dxf = 11;
constexpr int pulsante_distanza = 8;

void pulsante_file(distipo& doc, int pulsante) {
  if (pulsante == pulsante_bmp) {
    scegli(doc.mnucreabmp);
  } else if (pulsante == pulsante_dxf) {
    scegli(doc.mnudxf);
  } else if (pulsante != 6 && pulsante != 9) {
    opfile_Click(doc, pulsante);
  }
}

void pulsante_edita(distipo& doc, int pulsante) {
  if (pulsante == pulsante_distanza) {
    mnudistanza_Click(doc);
  } else {
    modifica_Click(doc, pulsante + 2);
  }
}

// A file of the command line: one that is not there is passed over, one that cannot be read is told.
void apri_da_riga(trelvobas& bas, const std::string& nome) {
  const std::optional<std::string> sorgente = scegli_sorgente(bas.desktop, nome);
  if (!sorgente || !leggibile(*sorgente)) return;
  attivabarre(bas);
  nuovodisegno(bas);
  bas.disegnoattivo = bas.ndocumenti;
  const PointerGuard attesa(bas.desktop, pointer_hourglass);
  registra_nome(*bas.attivo(), nome);
  if (testo_di_disegno(nome)) {
    importa(*bas.attivo());
  } else {
    leggifile(*bas.attivo(), *sorgente);
  }
}

}  // namespace

void MDIForm_Load(trelvobas& bas, const std::string& riga) {
  bas.frmMain.WindowState = window_maximised;
  impostcoolbar(bas);
  bas.frmMain.Caption = "Trelvo - (Modulo Disegni Bidimensionali) - Versione " TRELVO_VERSION;
  bas.nbarre = 2;
  const std::string nome = senza_virgolette(riga);
  if (!nome.empty()) apri_da_riga(bas, nome);
}

void Toolbar1_ButtonClick(trelvobas& bas, int strumenti, int pulsante) {
  distipo* doc = bas.attivo();
  if (doc == nullptr) return;
  switch (strumenti) {
    case strumenti_file:
      pulsante_file(*doc, pulsante);
      break;
    case strumenti_disegna:
      opdis_Click(*doc, pulsante);
      break;
    case strumenti_zoom:
      scegli_zoom(*doc, pulsante);
      break;
    default:
      pulsante_edita(*doc, pulsante);
  }
}

void Label11_Click(trelvobas& bas) {
  distipo* doc = bas.attivo();
  if (doc == nullptr) return;
  int prossimo = 0;
  for (int i = 0; i <= 6; ++i) {
    if (doc->filtri(i).Checked) prossimo = i + 1;
  }
  if (prossimo == 1) prossimo = 2;
  if (prossimo == 5) prossimo = 6;
  if (prossimo == 7) prossimo = 0;
  impfiltri(*doc, prossimo);
}

void nascondilinee_cursore(trelvobas& bas) {
  if (bas.attivo() != nullptr) mostra_croce(*bas.attivo(), false);
}

}  // namespace trelvo
