#include "commands/motore.h"

#include "commands/comando.h"
#include "commands/deselezione.h"
#include "commands/modifica.h"
#include "commands/prompt.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/mappa.h"
#include "view/redraw.h"

namespace trelvo {

namespace {

bool sospeso(const distipo& doc) { return !doc.cmd.comandosospeso.tipo().empty(); }

void azzera_sospeso(distipo& doc) {
  doc.cmd.comandosospeso.tipo("");
  doc.cmd.comandosospeso.nvertici = 0;
}

// Replayed points are not rounded again.
class senza_step {
 public:
  explicit senza_step(impostazioni& imp) : imp_(imp), stato_(imp.statostep), passo_(imp.passostep), era_(imp.step()) {
    if (!era_) return;
    imp_.statostep = spento;
    imp_.passostep = 0;
  }
  senza_step(const senza_step&) = delete;
  senza_step& operator=(const senza_step&) = delete;
  ~senza_step() {
    if (!era_) return;
    imp_.statostep = stato_;
    imp_.passostep = passo_;
  }

 private:
  impostazioni& imp_;
  std::string stato_;
  float passo_;
  bool era_;
};

void conferma_selezione(distipo& doc, const comando& c) {
  frmMainForm& f = doc.bas.frmMain;
  doc.cmd.ntrovati = 0;
  doc.cmd.passo = 2;
  f.Label2.Caption = c.base;
  f.Label1.Caption = "<" + c.nome + ">";
  f.Text1.Text = "";
  f.Text2.Text = "";
  doc.Shape1.Visible = false;
  doc.Shape2.Visible = false;
}

// A zoom that waits for its window gives way to another repaint and goes on waiting at the same step.
void zoom_da_parte(distipo& doc, const std::function<void()>& azione) {
  const reccomando in_corso = doc.cmd.corrente();
  const int passo = doc.cmd.passo;
  const auto rimetti = [&] {
    doc.cmd.corrente() = in_corso;
    scrivilabel1(doc);
    doc.cmd.passo = passo;
    if (passo == 0) return;
    scrivilabel2(doc);
    doc.bas.frmMain.Text1.Text = coppia(in_corso.x1, in_corso.y1);
  };
  doc.cmd.corrente().tipo("");
  try {
    azione();
  } catch (...) {
    rimetti();
    throw;
  }
  rimetti();
}

void riprendi_sospeso(distipo& doc, const comando& c) {
  const senza_step ripetizione(doc.imp);
  const reccomando ripreso = doc.cmd.comandosospeso;
  if (c.riprendi != nullptr) {
    doc.cmd.corrente() = ripreso;
    doc.cmd.corrente().nvertici = 0;
    c.riprendi(doc);
  }
  doc.cmd.passo = ripreso.nvertici;
  if (ripreso.nvertici == 1 || ripreso.nvertici == 2) {
    doc.bas.frmMain.Text1.Text = coppia(ripreso.x1, ripreso.y1);
  }
  if (ripreso.nvertici > 1) scrivilabel2(doc);
  doc.surface.set_AutoRedraw(true);
  if (c.riprendi_passo != nullptr) c.riprendi_passo(doc);
}

}  // namespace

void avvia_comando(distipo& doc, const std::string& nome) {
  abbandona_sospeso(doc);
  if (!doc.cmd.comando().empty()) annullacomando(doc, doc.cmd.livello);
  doc.cmd.corrente().tipo(nome);
  doc.cmd.modificato = 1;
  scrivilabel1(doc);
}

void opdis_Click(distipo& doc, int Index) { avvia_comando(doc, doc.opdis(Index).Caption); }

void mnudistanza_Click(distipo& doc) { avvia_comando(doc, doc.mnudistanza.Caption); }

void eseguicomando(distipo& doc, int& n) {
  const comando* c = n < static_cast<int>(doc.cmd.comandi.size()) && n >= 0
                         ? trova_comando(doc.bas, doc.cmd.comandi[static_cast<std::size_t>(n)].tipo())
                         : nullptr;
  if (c != nullptr && c->esegui != nullptr) c->esegui(doc, n);
  if (sospeso(doc)) ripristinatrasparente(doc);
  doc.bas.desktop.MousePointer = pointer_default;
}

namespace {

// "Stira" has marks and a mode of selection of its own. True if something was selected.
bool lascia_selezione(distipo& doc, const std::string& comando) {
  const bool stira = comando == "Stira";
  if (stira) doc.cmd.modoselez = modo_scelto(doc);
  return deseleziona(doc.dis, stira);
}

}  // namespace

void annullacomando(distipo& doc, int n) {
  doc.surface.set_AutoRedraw(true);
  statocomandi& cmd = doc.cmd;
  if (n < 0 || n >= static_cast<int>(cmd.comandi.size())) n = cmd.livello;
  const comando* c = comando_corrente(doc);
  bool ridipingi = false;
  if (!sospeso(doc)) {
    cmd.ntrovati = 0;
    cmd.passo = 0;
    ridipingi = lascia_selezione(doc, c == nullptr ? "" : c->nome);
    if (c != nullptr && c->tipo != genere::areastampa) cmd.ultimocomando = c->nome;
  }
  for (const int livello : {n, cmd.livello}) {
    reccomando& r = cmd.comandi[static_cast<std::size_t>(livello)];
    r.tipo("");
    r.x1 = r.y1 = r.x2 = r.y2 = r.x3 = 0;
  }
  doc.Line3.Visible = false;
  doc.Line4.Visible = false;
  doc.Shape1.Visible = false;
  doc.Shape2.Visible = false;
  doc.Shape3.Visible = false;
  scrivilabel1(doc);
  doc.bas.frmMain.Text1.ForeColor = tavolozza(0);
  doc.bas.frmMain.Text1.Locked = false;
  // Last, since a view that cannot be painted must not leave half a command.
  if (ridipingi) redraw(doc);
}

void clicksin(distipo& doc, float& X, float& Y) {
  const comando* c = comando_corrente(doc);
  if (c == nullptr) return;
  statofiltro& f = doc.filtro;
  if (f.filtroattivo != 0 && f.trovatofiltro == 1 && c->aggancio != nullptr && c->aggancio(doc)) {
    X = static_cast<float>(f.xfiltro * doc.vista.rapscala);
    Y = static_cast<float>(f.yfiltro * doc.vista.rapscala);
    f.trovatofiltro = 0;
    f.xfiltro = 0;
    f.yfiltro = 0;
  }
  // A point that the window's units cannot hold would make an object that no file gives back.
  X = to_float(X);
  Y = to_float(Y);
  if (c->clic != nullptr) c->clic(doc, X, Y);
}

void clickdes(distipo& doc) {
  statocomandi& cmd = doc.cmd;
  const comando* c = comando_corrente(doc);
  if (c == nullptr) {
    if (cmd.ultimocomando.empty()) {
      doc.bas.desktop.beep();
      return;
    }
    cmd.corrente().tipo(cmd.ultimocomando);
    cmd.ultimocomando.clear();
  } else if (c->destro_esegue != nullptr && c->destro_esegue(doc)) {
    eseguicomando(doc, cmd.livello);
    cmd.ntrovati = 0;
  } else if (c->destro_conferma != nullptr && c->destro_conferma(doc)) {
    if (cmd.ntrovati != 0) {
      conferma_selezione(doc, *c);
      return;
    }
    annullacomando(doc, cmd.livello);
  } else if (c->destro_altrimenti != nullptr) {
    c->destro_altrimenti(doc);
    return;
  } else {
    annullacomando(doc, cmd.livello);
    if (sospeso(doc)) {
      ripristinatrasparente(doc);
      return;
    }
  }
  scrivilabel1(doc);
}

void gestastiera(distipo& doc, int KeyAscii) {
  if (KeyAscii == key_enter) {
    clickdes(doc);
    return;
  }
  const comando* c = comando_corrente(doc);
  if (KeyAscii != key_escape || c == nullptr) return;
  if (sospeso(doc) && doc.cmd.comandosospeso.tipo() != c->nome) {
    // Nothing of the zoom is left on the command line.
    annullacomando(doc, doc.cmd.livello);
    ripristinatrasparente(doc);
  } else if (c->esc_annulla) {
    annullacomando(doc, doc.cmd.livello);
    redraw(doc);
  } else {
    doc.cmd.passo = 0;
    clickdes(doc);
  }
}

void sospendi(distipo& doc) {
  const comando* c = comando_corrente(doc);
  if (c == nullptr) {
    azzera_sospeso(doc);
    return;
  }
  doc.cmd.comandosospeso = doc.cmd.corrente();
  doc.cmd.comandosospeso.nvertici = static_cast<std::int16_t>(doc.cmd.passo);
  if (c->accantona != nullptr) c->accantona(doc);
  annullacomando(doc, doc.cmd.livello);
}

void ripristinatrasparente(distipo& doc) {
  const comando* c = trova_comando(doc.bas, doc.cmd.comandosospeso.tipo());
  if (c == nullptr) {
    azzera_sospeso(doc);
    return;
  }
  try {
    riprendi_sospeso(doc, *c);
    azzera_sospeso(doc);
  } catch (...) {
    // Half a command cannot go on: at this scale its points are out of reach.
    azzera_sospeso(doc);
    annullacomando(doc, doc.cmd.livello);
    throw;
  }
}

void abbandona_sospeso(distipo& doc) {
  if (!sospeso(doc)) return;
  const std::string comando = doc.cmd.comandosospeso.tipo();
  azzera_sospeso(doc);
  if (lascia_selezione(doc, comando)) redraw(doc);
}

void con_comando_da_parte(distipo& doc, const std::function<void()>& azione) {
  const comando* c = comando_corrente(doc);
  if (c == nullptr) {
    azione();
  } else if (c->tipo == genere::zoom) {
    zoom_da_parte(doc, azione);
  } else {
    sospendi(doc);
    try {
      azione();
    } catch (...) {
      ripristinatrasparente(doc);
      throw;
    }
    ripristinatrasparente(doc);
  }
}

}  // namespace trelvo
