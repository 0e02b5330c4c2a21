#include "commands/comandi_disegno.h"
#include "commands/creazione.h"
#include "commands/cursore_sospeso.h"
#include "commands/motore.h"
#include "commands/prompt.h"
#include "platform/numbers.h"
#include "view/banda.h"
#include "view/mappa.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

// What tells one of the two commands from the other.
template <class Oggetto>
struct spezzata;

template <>
struct spezzata<polilinea> {
  static constexpr const char* nome = "Polilinea";
  static polilinea& cursore(trelvobas& bas) { return bas.cur.curPolilinea; }
  static std::optional<polilinea>& tenuto(trelvobas& bas) { return bas.cur.sosPolilinea; }
  static pennabanda penna(const distipo& doc) { return penna_linee(doc); }
};

template <>
struct spezzata<superficie> {
  static constexpr const char* nome = "Superficie";
  static superficie& cursore(trelvobas& bas) { return bas.cur.curSuperficie; }
  static std::optional<superficie>& tenuto(trelvobas& bas) { return bas.cur.sosSuperficie; }
  static pennabanda penna(const distipo& doc) { return penna_superfici(doc); }
};

template <class Oggetto>
void primoprompt(distipo& doc) {
  using s = spezzata<Oggetto>;
  doc.bas.frmMain.Label1.Caption = std::string(" ") + s::nome + ": 1° Vertice  ";
  s::cursore(doc.bas).vertic(0);
}

template <class Oggetto>
void scrivi_vertice(distipo& doc, int n) {
  doc.bas.frmMain.Label1.Caption = std::string(" ") + spezzata<Oggetto>::nome + ": " + std::to_string(n) + "° Vertice";
}

template <class Oggetto>
std::string secondoprompt(const distipo& doc) {
  return " " + std::to_string(spezzata<Oggetto>::cursore(doc.bas).vertic() + 1) + "° Vertice";
}

// What has been entered shows at once; a stroke that cannot be painted loses nothing.
template <class Oggetto>
void tratto_vivo(distipo& doc, double x1, double y1, double x2, double y2) {
  const pennabanda penna = spezzata<Oggetto>::penna(doc);
  try {
    disegna_tratto(doc, x1, y1, x2, y2, penna.spessore, penna.tratto, penna.colore);
  } catch (const RuntimeError&) {
  }
}

template <class Oggetto>
void clic(distipo& doc, float& X, float& Y) {
  X = to_float(X / doc.vista.rapscala);
  Y = to_float(Y / doc.vista.rapscala);
  Oggetto& oggetto = spezzata<Oggetto>::cursore(doc.bas);
  const std::int16_t n = round_to_int16(oggetto.vertic() + 1);
  oggetto.vertic(n);
  reccomando& r = doc.cmd.corrente();
  if (doc.cmd.passo == 0) {
    oggetto.vertici.inserisci(X, Y, n);
    doc.cmd.passo = 1;
    r.x1 = X;
    r.y1 = Y;
  } else {
    vincola_orto(doc, r.x1, r.y1, X, Y);
    scrivi_vertice<Oggetto>(doc, n);
    doc.bas.frmMain.Text1.Text = doc.bas.frmMain.Text2.Text;
    oggetto.vertici.inserisci(X, Y, n);
    r.x2 = X;
    r.y2 = Y;
    tratto_vivo<Oggetto>(doc, r.x1, r.y1, r.x2, r.y2);
    r.x1 = r.x2;
    r.y1 = r.y2;
  }
  scrivilabel2(doc);
}

template <class Oggetto>
void esegui(distipo& doc, int& /*n*/) {
  using s = spezzata<Oggetto>;
  doc.cmd.statooggetti = 1;
  if (s::cursore(doc.bas).vertic() < 2) {
    doc.bas.desktop.beep();
    doc.bas.desktop.message_box("Inserire almeno due vertici.", Buttons::ok);
  } else {
    aggiungi_oggetto(doc, s::nome);
  }
  doc.cmd.ultimocomando = s::nome;
  reiniz(doc, doc.cmd.livello);
  doc.cmd.comandosospeso.tipo("");
  doc.Line3.Visible = false;
}

template <class Oggetto>
void anteprima(distipo& doc, double x1, double y1, float& x2, float& y2) {
  const banda b = tendi_banda(doc, x1, y1, x2, y2, true);
  leggi_spostamento(doc, b);
  leggi_lunghezza(doc, b, " L=");
  leggi_coppia(doc, b);
  penna_linea(doc, spezzata<Oggetto>::penna(doc));
}

// The zoom has wiped the strokes of what was entered: they come back at the new scale.
template <class Oggetto>
void riprendi(distipo& doc) {
  using s = spezzata<Oggetto>;
  rendi_cursore(s::tenuto(doc.bas), s::cursore(doc.bas));
  const Oggetto& oggetto = s::cursore(doc.bas);
  if (oggetto.vertic() == 0) {
    scrivilabel1(doc);
    return;
  }
  scrivi_vertice<Oggetto>(doc, oggetto.vertic());
  const auto punti = oggetto.vertici.tutti();
  for (std::size_t i = 1; i < punti.size(); ++i) {
    tratto_vivo<Oggetto>(doc, punti[i - 1].x, punti[i - 1].y, punti[i].x, punti[i].y);
  }
  scrivilabel2(doc);
}

template <class Oggetto>
comando riga() {
  using s = spezzata<Oggetto>;
  comando c;
  c.nome = s::nome;
  c.primoprompt = primoprompt<Oggetto>;
  c.secondoprompt = secondoprompt<Oggetto>;
  c.clic = clic<Oggetto>;
  c.destro_esegue = [](const distipo&) { return true; };
  c.esegui = esegui<Oggetto>;
  c.anteprima = anteprima<Oggetto>;
  c.aggancio = [](const distipo&) { return true; };
  c.accantona = [](distipo& doc) { s::tenuto(doc.bas) = s::cursore(doc.bas); };
  c.riprendi = riprendi<Oggetto>;
  return c;
}

}  // namespace

comando riga_polilinea() { return riga<polilinea>(); }

comando riga_superficie() {
  comando c = riga<superficie>();
  c.esc_annulla = true;
  return c;
}

}  // namespace trelvo
