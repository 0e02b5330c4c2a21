#include "commands/comandi_modifica.h"

#include "commands/modifica.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "commands/puntatore.h"
#include "commands/selezione_modo.h"
#include "model/tavolozza.h"
#include "platform/numbers.h"
#include "view/anteprima_modifica.h"
#include "view/banda.h"
#include "view/mappa.h"
#include "view/redraw.h"
#include "view/selezione.h"

namespace trelvo {

namespace {

// Steps of an edit command.
constexpr int passo_selezione = 0;
constexpr int passo_seconda = 1;
constexpr int passo_base = 2;
constexpr int passo_fine = 3;

const char* const nome_proprieta = "Proprietà Oggetto";
const char* const punto_base = "Punto Base:";
const char* const asse_primo = "Primo Punto - Asse:";
const char* const asse_secondo = "Secondo Punto - Asse:";
const char* const punto_finale = "Punto Finale:";

bool per_oggetto(const distipo& doc) { return doc.cmd.modoselez == modo_oggetto; }
bool e_comando(const distipo& doc, const char* nome) { return doc.cmd.comando() == nome; }

// ---- prompts

void prompt_selezione(distipo& doc) {
  const std::string& nome = doc.cmd.comando();
  const std::string& modo = doc.cmd.modoselez;
  doc.cmd.ntrovati = 0;
  if (per_oggetto(doc)) {
    doc.bas.frmMain.Label1.Caption = nome + " _ Selez. Oggetto: ";
    doc.Shape2.BorderColor = tavolozza(doc.imp.colorepuntatore.valore);
    doc.Shape2.Visible = true;
  } else {
    doc.bas.frmMain.Label1.Caption = nome + " (" + text_left(modo, 1) + ") _ Primo Punto:";
  }
}

void prompt_stira(distipo& doc) {
  doc.bas.frmMain.Label1.Caption = " Stira _ Primo Punto:";
  doc.cmd.ntrovati = 0;
  doc.cmd.modoselez = modo_intersezione;
}

std::string secondo_cancella(const distipo& /*doc*/) { return "Secondo Punto: "; }

// ---- selection

void seconda_selezione(distipo& doc, double a, double b) {
  reccomando& r = doc.cmd.corrente();
  r.x2 = a;
  r.y2 = b;
  doc.cmd.passo = passo_selezione;
  double x1 = r.x1;
  double y1 = r.y1;
  double x2 = r.x2;
  double y2 = r.y2;
  if (doc.cmd.modoselez == modo_finestra) {
    selezfin(doc, x1, y1, x2, y2);
  } else if (e_comando(doc, "Stira")) {
    selezintersStira(doc, x1, y1, x2, y2);
  } else {
    selezinters(doc, x1, y1, x2, y2);
  }
  doc.Shape1.Visible = false;
  scrivitrov(doc);
}

void selezione_per_punto(distipo& doc, double a, double b) {
  selezionaoggetti(doc, a, b);
  scrivitrov(doc);
}

void clic_selezione(distipo& doc, float& X, float& Y) {
  const double a = X / doc.vista.rapscala;
  const double b = Y / doc.vista.rapscala;
  if (per_oggetto(doc)) {
    selezione_per_punto(doc, a, b);
  } else if (doc.cmd.passo == passo_selezione) {
    primo_angolo(doc, a, b);
  } else {
    seconda_selezione(doc, a, b);
  }
}

// ---- base point and end point

// What is painted from here on stays off the kept picture.
void punto_di_base(distipo& doc, double a, double b) {
  doc.surface.set_AutoRedraw(false);
  reccomando& r = doc.cmd.corrente();
  r.x1 = a;
  r.y1 = b;
  doc.cmd.passo = passo_fine;
  frmMainForm& f = doc.bas.frmMain;
  const bool specchio = e_comando(doc, "Specchio");
  f.Label1.Caption = specchio ? asse_primo : "<" + doc.cmd.comando() + "> " + punto_base;
  f.Text1.Text = coppia(a, b);
  f.Label2.Caption = e_comando(doc, "Ruota") ? "Angolo Rotazione:" : specchio ? asse_secondo : punto_finale;
  f.Text2.Text = "";
}

void punto_di_fine(distipo& doc, float& X, float& Y) {
  reccomando& r = doc.cmd.corrente();
  const double scala = doc.vista.rapscala;
  double a = X / scala;
  double b = Y / scala;
  vincola_orto(doc, r.x1, r.y1, a, b);
  X = static_cast<float>(a * scala);
  Y = static_cast<float>(b * scala);
  if (e_comando(doc, "Ruota")) {
    r.x2 = within_float(numeric_prefix(doc.bas.frmMain.Text2.Text.get()));
  } else {
    r.x2 = a;
    r.y2 = b;
  }
  doc.surface.set_AutoRedraw(true);
  try {
    eseguicomando(doc, doc.cmd.livello);
  } catch (...) {
    // The step goes on, and its previews stay off the kept picture.
    if (doc.cmd.passo == passo_fine) doc.surface.set_AutoRedraw(false);
    throw;
  }
  scrivilabel1(doc);
}

void clic_modifica(distipo& doc, float& X, float& Y) {
  const double a = X / doc.vista.rapscala;
  const double b = Y / doc.vista.rapscala;
  const bool punto = per_oggetto(doc) && !e_comando(doc, "Stira");
  const int passo = doc.cmd.passo;
  if (passo == passo_base) {
    punto_di_base(doc, a, b);
  } else if (punto && passo == passo_selezione) {
    selezione_per_punto(doc, a, b);
  } else if (!punto && passo == passo_selezione) {
    primo_angolo(doc, a, b);
  } else if (!punto && passo == passo_seconda) {
    seconda_selezione(doc, a, b);
  } else {
    punto_di_fine(doc, X, Y);
  }
}

// ---- right click

bool destro_non_alla_base(const distipo& doc) { return doc.cmd.passo != passo_base; }

// In pick mode at every step but that of the base point, in the window modes while none of a window is given.
bool conferma_spostamento(const distipo& doc) {
  return (per_oggetto(doc) && doc.cmd.passo != passo_base) || doc.cmd.passo == passo_selezione;
}

bool conferma_stira(const distipo& doc) { return doc.cmd.passo == passo_selezione; }

// ---- execution

void esegui_modifica(distipo& doc, int& n) {
  statocomandi& cmd = doc.cmd;
  const std::string nome = cmd.comandi[static_cast<std::size_t>(n)].tipo();
  doc.surface.set_AutoRedraw(true);
  const bool proprieta = nome == nome_proprieta;
  int contatore = 0;
  {
    const PointerGuard attesa(doc.bas.desktop, proprieta ? pointer_default : pointer_hourglass);
    for (const auto& modifica : proprieta ? doc.bas.proprieta : doc.bas.modifiche) modifica(doc, n, contatore);
  }
  if (nome == "Stira") cmd.modoselez = modo_scelto(doc);
  if (contatore == 0) {
    annullacomando(doc, n);
    return;
  }
  cmd.modificato = 1;
  redraw(doc);
  cmd.ultimocomando = nome;
  ++n;
  reiniz(doc, n);
  cmd.comandosospeso.tipo("");
  doc.Line3.Visible = false;
  doc.Shape1.Visible = false;
}

// ---- preview

void anteprima_spostamento(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const int passo = doc.cmd.passo;
  const banda b = tendi_banda(doc, x1, y1, x2, y2, per_oggetto(doc) || passo == passo_fine);
  if (!per_oggetto(doc) || e_comando(doc, "Stira")) {
    leggi_spostamento(doc, b);
    leggi_coppia(doc, b);
    if (passo == passo_seconda) finestra_selezione(doc, b, doc.cmd.modoselez == modo_finestra);
  }
  if (passo == passo_fine) anteprima_modifica(doc, doc.cmd.comando(), b);
}

bool aggancio_dopo_selezione(const distipo& doc) {
  const int passo = doc.cmd.passo;
  return passo != passo_selezione && (passo != passo_seconda || per_oggetto(doc));
}

bool aggancio_stira(const distipo& doc) { return doc.cmd.passo > passo_seconda; }

// ---- resuming after a zoom

void riprendi_selezione(distipo& doc, int indice) {
  avvia_modifica(doc, indice);
  doc.cmd.ntrovati = conta_selezionati(doc);
}

template <int Indice>
void riprendi_senza_punti(distipo& doc) {
  riprendi_selezione(doc, Indice);
  scrivitrov(doc);
  doc.surface.set_AutoRedraw(false);
}

void riprendi_base(distipo& doc) {
  frmMainForm& f = doc.bas.frmMain;
  f.Label2.Caption = e_comando(doc, "Specchio") ? asse_primo : punto_base;
  f.Label1.Caption = "<" + doc.cmd.comando() + ">";
  accendi_Text2(doc);
  doc.cmd.passo = passo_base;
  doc.Shape2.Visible = false;
  ripeti_mouse(doc);
}

void riprendi_fine(distipo& doc, const reccomando& ripreso) {
  doc.cmd.passo = passo_base;
  doc.Shape2.Visible = false;
  doc.filtro.trovatofiltro = 0;
  const double scala = doc.vista.rapscala;
  doc.MousePointer = pointer_own;
  Form_MouseDown(doc, 1, static_cast<float>(ripreso.x1 * scala), static_cast<float>(ripreso.y1 * scala));
  // The point comes back through 32-bit floats: what was given holds.
  doc.cmd.corrente().x1 = ripreso.x1;
  doc.cmd.corrente().y1 = ripreso.y1;
  frmMainForm& f = doc.bas.frmMain;
  accendi_Text2(doc);
  f.Label2.Caption = e_comando(doc, "Ruota")      ? "Angolo di Rotazione:"
                     : e_comando(doc, "Specchio") ? asse_secondo
                                                  : punto_finale;
  f.Text1.Text = number_text(ripreso.x1) + ";" + number_text(ripreso.y1);
}

template <int Indice>
void riprendi_modifica(distipo& doc) {
  const reccomando ripreso = doc.cmd.comandosospeso;
  riprendi_selezione(doc, Indice);
  if (ripreso.nvertici == passo_selezione) scrivitrov(doc);
  // A confirmed selection is no longer counted: what is left to confirm would keep a cancel from cancelling.
  if (ripreso.nvertici >= passo_base) doc.cmd.ntrovati = 0;
  if (ripreso.nvertici == passo_base) riprendi_base(doc);
  if (ripreso.nvertici == passo_fine) riprendi_fine(doc, ripreso);
}

comando riga(const char* nome, const char* conferma, const char* base) {
  comando c;
  c.nome = nome;
  c.tipo = genere::modifica;
  c.primoprompt = prompt_selezione;
  c.conferma = conferma;
  c.clic = clic_modifica;
  c.destro_conferma = conferma_spostamento;
  c.base = base;
  c.esegui = esegui_modifica;
  c.anteprima = anteprima_spostamento;
  c.aggancio = aggancio_dopo_selezione;
  return c;
}

// A command that acts on the confirmed selection, with no points.
comando riga_senza_punti(const char* nome, const char* conferma) {
  comando c = riga(nome, conferma, punto_base);
  c.clic = clic_selezione;
  c.destro_esegue = destro_non_alla_base;
  c.destro_conferma = nullptr;
  c.anteprima = anteprima_selezione;
  c.aggancio = nullptr;
  return c;
}

}  // namespace

void primo_angolo(distipo& doc, double a, double b) {
  reccomando& r = doc.cmd.corrente();
  r.x1 = a;
  r.y1 = b;
  frmMainForm& f = doc.bas.frmMain;
  f.Text1.Text = coppia(a, b);
  accendi_Text2(doc);
  f.Label2.Caption = "Secondo Punto:";
  doc.cmd.passo = passo_seconda;
}

void anteprima_selezione(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, false);
  leggi_spostamento(doc, b);
  leggi_coppia(doc, b);
  finestra_selezione(doc, b, doc.cmd.modoselez == modo_finestra);
}

std::vector<comando> comandi_modifica() {
  comando cancella = riga_senza_punti("Cancella", "Conferma Cancella");
  cancella.secondoprompt = secondo_cancella;
  cancella.riprendi_passo = riprendi_senza_punti<3>;
  comando proprieta = riga_senza_punti(nome_proprieta, "Conferma Selezione");
  proprieta.riprendi_passo = riprendi_senza_punti<9>;
  comando sposta = riga("Sposta", "Conferma Oggetti da Spostare", punto_base);
  sposta.riprendi_passo = riprendi_modifica<4>;
  comando copia = riga("Copia", "Conferma Oggetti da Copiare", punto_base);
  copia.riprendi_passo = riprendi_modifica<5>;
  comando ruota = riga("Ruota", "Conferma Oggetti da Ruotare", punto_base);
  ruota.riprendi_passo = riprendi_modifica<6>;
  comando specchio = riga("Specchio", "Conferma Specchio", asse_primo);
  specchio.riprendi_passo = riprendi_modifica<7>;
  comando stira = riga("Stira", nullptr, punto_base);
  stira.primoprompt = prompt_stira;
  stira.destro_conferma = conferma_stira;
  stira.aggancio = aggancio_stira;
  stira.riprendi_passo = riprendi_modifica<8>;
  return {cancella, sposta, copia, ruota, specchio, stira, proprieta};
}

}  // namespace trelvo
