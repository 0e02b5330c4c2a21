#include "disegno_grande.h"

#include <cmath>
#include <numbers>

#include "geometry/misure.h"

namespace trelvo {

namespace {

class disegnatore {
 public:
  disegnatore(distipo& doc, const foglio& f, double misura) : doc_(doc), foglio_(f), misura_(misura) {}

  void linea() {
    Linea o;
    const vertice a = posto();
    const vertice b = accanto(a);
    o.Xi = a.x;
    o.Yi = a.y;
    o.Xf = b.x;
    o.Yf = b.y;
    o.colorelinea = colore();
    doc_.dis.collLinee.aggiungi(o);
  }
  void cerchio() {
    Cerchio o;
    const vertice centro = posto();
    o.Xcentro = centro.x;
    o.Ycentro = o.YPunto = centro.y;
    o.Xpunto = o.Xcentro + raggio();
    o.raggio = misure_di_cerchio(o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto).raggio;
    fondo(o);
    doc_.dis.collCerchi.aggiungi(o);
  }
  // A quarter of a circle.
  void arco() {
    Arco o;
    const vertice centro = posto();
    const double r = raggio();
    const double da = caso(0, 2 * std::numbers::pi);
    const auto punto = [&](double angolo, double& x, double& y) {
      x = centro.x + r * std::cos(angolo);
      y = centro.y + r * std::sin(angolo);
    };
    punto(da + std::numbers::pi / 2, o.p1x, o.p1y);
    punto(da, o.p2x, o.p2y);
    punto(da + std::numbers::pi / 4, o.p3x, o.p3y);
    o.colcont = colore();
    doc_.dis.collArchi.aggiungi(o);
  }
  void rettangolo() {
    Rettangolo o;
    const vertice a = posto();
    const vertice b = accanto(a);
    o.vertic(4);
    o.inser_vert_ret(a.x, a.y, 1);
    o.inser_vert_ret(b.x, a.y, 2);
    o.inser_vert_ret(b.x, b.y, 3);
    o.inser_vert_ret(a.x, b.y, 4);
    fondo(o);
    doc_.dis.collRettangoli.aggiungi(o);
  }
  void spezzata() {
    polilinea o;
    riempi_vertici(o.vertici, 6);
    o.colcont = colore();
    doc_.dis.collPolilinee.aggiungi(o);
  }
  void area() {
    superficie o;
    riempi_vertici(o.vertici, 5);
    fondo(o);
    doc_.dis.collSuperfici.aggiungi(o);
  }
  void scritta(int numero) {
    testo o;
    const vertice a = posto();
    o.pos_testox = a.x;
    o.pos_testoy = a.y;
    o.stringa_testo = "quota " + std::to_string(numero % 1000);
    o.carattere_testo("Arial");
    o.dimens_testo = static_cast<float>(misura_ / 10);
    o.ang_testo(numero % 4 == 0 ? 90 : 0);
    o.colore_testo = colore();
    doc_.dis.collTesti.aggiungi(o);
  }

 private:
  double caso(double da, double a) { return std::uniform_real_distribution<double>(da, a)(generatore_); }
  std::int32_t colore() { return static_cast<std::int32_t>(generatore_() & 0xFFFFFF); }
  double raggio() { return caso(misura_ / 20, misura_ / 2); }
  vertice posto() { return {caso(0, foglio_.larghezza), caso(0, foglio_.altezza)}; }
  vertice accanto(const vertice& v) { return {v.x + caso(-misura_, misura_), v.y + caso(-misura_, misura_)}; }
  void riempi_vertici(elencovertici& vertici, int numero) {
    vertici.vertic(static_cast<std::int16_t>(numero));
    const vertice centro = posto();
    for (int i = 1; i <= numero; ++i) {
      const double angolo = 2 * std::numbers::pi * i / numero;
      const double r = raggio();
      vertici.inserisci(centro.x + r * std::cos(angolo), centro.y + r * std::sin(angolo), i);
    }
  }
  // A third hollow, a third hatched, a third solid.
  template <class Oggetto>
  void fondo(Oggetto& o) {
    constexpr std::int32_t fondi[] = {7, 4, 6};
    o.campitura = fondi[generatore_() % 3];
    o.colocampitura = colore();
    o.colcont = colore();
  }

  distipo& doc_;
  foglio foglio_;
  double misura_;
  std::mt19937 generatore_{1};
};

}  // namespace

foglio foglio_per(int numero) {
  const double lato = passo_oggetti * std::sqrt(numero / 6.0);
  return {3 * lato, 2 * lato};
}

void riempi(distipo& doc, int numero, bool solo_linee, double fattore) {
  disegnatore d(doc, foglio_per(numero), passo_oggetti * fattore);
  for (int i = 0; i < numero; ++i) {
    if (solo_linee || i % 5 < 3) {
      d.linea();
      continue;
    }
    switch (i / 5 % 3 * 2 + i % 5 - 3) {
      case 0:
        d.cerchio();
        break;
      case 1:
        d.arco();
        break;
      case 2:
        d.rettangolo();
        break;
      case 3:
        d.spezzata();
        break;
      case 4:
        d.area();
        break;
      default:
        d.scritta(i);
    }
  }
  doc.cmd.statooggetti = 1;
}

}  // namespace trelvo
