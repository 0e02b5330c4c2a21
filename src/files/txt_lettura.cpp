#include "files/txt_lettura.h"

#include <array>
#include <cmath>
#include <string_view>

#include "files/dis_formato.h"
#include "files/txt_numeri.h"
#include "files/valori.h"
#include "geometry/misure.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::size_t caratteri_stringa = 100;
constexpr std::int16_t vertici_rettangolo = 4;

float reale32(double valore) {
  const auto stretto = static_cast<float>(valore);
  if (!std::isfinite(stretto)) throw RuntimeError(error_overflow);
  return stretto;
}

// Hands out the lines, and what they hold as the fields of an object want it.
class lettore {
 public:
  lettore(righetxt& righe, const RegionalFormat& formato, avanzamento& letto)
      : righe_(righe), numeri_(formato), letto_(letto) {}

  bool avanza(std::string_view& riga) {
    if (!righe_.avanza(riga)) return false;
    letto_.letta(riga.size());
    return true;
  }
  std::string_view riga() {
    std::string_view riga;
    if (!avanza(riga)) throw RuntimeError(error_past_end);
    return riga;
  }

  double numero() { return numeri_(riga()); }
  std::int32_t intero() { return round_to_int32(numero()); }
  std::int16_t conteggio() { return round_to_int16(numero()); }
  float reale() { return reale32(numero()); }
  std::int16_t segno() { return numeric_prefix(riga()) == 1 ? vero : falso; }
  std::string testo(std::size_t massimo) { return from_code_page(riga().substr(0, massimo)); }

  void punto(double& x, double& y) {
    x = numero();
    y = numero();
  }

 private:
  righetxt& righe_;
  numeritxt numeri_;
  avanzamento& letto_;
};

template <class Classe>
void contorno(lettore& l, Classe& o) {
  o.colcont = l.intero();
  o.spescont = l.reale();
  o.trattcont = l.intero();
}

template <class Classe>
void contorno_e_campitura(lettore& l, Classe& o) {
  o.campitura = l.intero();
  o.colcont = l.intero();
  o.colocampitura = l.intero();
  o.spescont = l.reale();
  o.trattcont = l.intero();
}

void vertici(lettore& l, elencovertici& elenco, std::int16_t n) {
  elenco.vertic(n);
  for (vertice& v : elenco.tutti()) l.punto(v.x, v.y);
}

template <class Classe>
void misura_contorno(Classe& o) {
  o.supf = area(o.vertici.tutti());
  o.perimet = perimetro(o.vertici.tutti());
}

void leggi(lettore& l, Linea& o) {
  o.colorelinea = l.intero();
  o.speslinea = l.reale();
  o.TipoLinea = l.intero();
  l.punto(o.Xi, o.Yi);
  l.punto(o.Xf, o.Yf);
}

void leggi(lettore& l, superficie& o) {
  contorno_e_campitura(l, o);
  vertici(l, o.vertici, l.conteggio());
  misura_contorno(o);
}

void leggi(lettore& l, polilinea& o) {
  contorno(l, o);
  vertici(l, o.vertici, l.conteggio());
}

void leggi(lettore& l, Arco& o) {
  contorno(l, o);
  l.punto(o.p1x, o.p1y);
  l.punto(o.p2x, o.p2y);
  l.punto(o.p3x, o.p3y);
}

void leggi(lettore& l, Cerchio& o) {
  contorno_e_campitura(l, o);
  l.punto(o.Xcentro, o.Ycentro);
  l.punto(o.Xpunto, o.YPunto);
  const misure_cerchio m = misure_di_cerchio(o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto);
  o.raggio = m.raggio;
  o.perimet = m.perimet;
  o.supf = m.supf;
}

void leggi(lettore& l, Rettangolo& o) {
  contorno_e_campitura(l, o);
  vertici(l, o.vertici, vertici_rettangolo);
  misura_contorno(o);
}

void leggi(lettore& l, testo& o) {
  l.punto(o.pos_testox, o.pos_testoy);
  o.barrato_testo = l.segno();
  o.bold_testo = l.segno();
  o.corsivo_testo(l.segno());
  o.opaco_testo = l.segno();
  o.sottolineato_testo = l.segno();
  o.dimens_testo = l.reale();
  o.ang_testo(l.intero());
  o.colore_testo = l.intero();
  o.colore_opaco_testo = l.intero();
  o.carattere_testo(l.testo(lunghezza_carattere));
  o.stringa_testo = l.testo(caratteri_stringa);
}

template <class Classe>
void aggiungi(lettore& l, disegno& dis) {
  Classe o;
  leggi(l, o);
  collezione_di<Classe>(dis).aggiungi(std::move(o));
}

struct parola {
  std::string_view tipo;
  void (*aggiungi)(lettore&, disegno&);
};

constexpr std::array<parola, 7> parole{{
    {tipo_linea, aggiungi<Linea>},
    {tipo_superficie, aggiungi<superficie>},
    {tipo_polilinea, aggiungi<polilinea>},
    {tipo_arco, aggiungi<Arco>},
    {tipo_cerchio, aggiungi<Cerchio>},
    {tipo_rettangolo, aggiungi<Rettangolo>},
    {tipo_testo, aggiungi<testo>},
}};

// nullptr for a line that is no keyword.
const parola* riconosci(std::string_view riga) {
  const std::size_t inizio = riga.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return nullptr;
  const std::string_view tipo = riga.substr(inizio, riga.find_last_not_of(' ') - inizio + 1);
  for (const parola& p : parole) {
    if (p.tipo == tipo) return &p;
  }
  return nullptr;
}

// Keeps its form of an integer, as the start value has it.
indicecolore colore(double valore) {
  indicecolore letto = colore_tipizzato(valore);
  letto.doppio = false;
  return letto;
}

}  // namespace

impostazionilette leggi_testata_txt(righetxt& righe) {
  impostazionilette lette;
  const double sfondo = numeric_prefix(righe.valore());
  const double puntatore = numeric_prefix(righe.valore());
  lette.statostep = from_code_page(righe.valore());
  const double passostep = numeric_prefix(righe.valore());
  lette.statogriglia = from_code_page(righe.valore());
  const double passogriglia = numeric_prefix(righe.valore());
  lette.coloresfondo = colore(sfondo);
  lette.colorepuntatore = colore(puntatore);
  lette.passostep = reale32(passostep);
  lette.passogriglia = reale32(passogriglia);
  return lette;
}

bool leggi_oggetti_txt(righetxt& righe, const RegionalFormat& formato, avanzamento& letto, disegno& dis) {
  lettore l(righe, formato, letto);
  bool riconosciuti = false;
  std::string_view riga;
  while (l.avanza(riga)) {
    const parola* trovata = riconosci(riga);
    if (trovata == nullptr) continue;
    riconosciuti = true;
    trovata->aggiungi(l, dis);
  }
  letto.fine();
  return riconosciuti;
}

}  // namespace trelvo
