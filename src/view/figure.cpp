#include "view/figure.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "geometry/cerchi.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace trelvo {

namespace {

constexpr std::int32_t campitura_solida = 6;
constexpr std::int32_t campitura_trasparente = 7;
constexpr std::int32_t campitura_bitmap = 8;
constexpr std::int64_t raggio_massimo = 100000;
constexpr std::int32_t peso_bold = 700;

Pen penna_di(const contorno& c) { return {c.tratto, round_clamped(c.spessore), c.colore}; }

Point punto_di(vertice v) { return {round_clamped(v.x), round_clamped(v.y)}; }

std::int32_t limitato(std::int64_t valore) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(valore, std::numeric_limits<std::int32_t>::min(),
                                                            std::numeric_limits<std::int32_t>::max()));
}

std::span<const Point> interi(std::span<const vertice> punti, std::vector<Point>& deposito) {
  deposito.resize(punti.size());
  std::transform(punti.begin(), punti.end(), deposito.begin(), punto_di);
  return deposito;
}

}  // namespace

Brush pennello(std::int32_t campitura, Color colore) {
  if (campitura < 0 || campitura >= campitura_trasparente) return {};
  if (campitura == campitura_solida) return {Brush::Kind::solid, 0, colore};
  return {Brush::Kind::hatch, campitura, colore};
}

Brush pennello_superficie(std::int32_t campitura, Color colore) {
  if (campitura == 0) return {};
  if (campitura == campitura_bitmap) return {Brush::Kind::pattern, 0, colore};
  return pennello(campitura, colore);
}

void disPolyline(DeviceContext& DC, std::span<const vertice> punti, const contorno& penna) {
  std::vector<Point> deposito;
  DC.Polyline(penna_di(penna), interi(punti, deposito));
}

void dispoligono(DeviceContext& DC, std::span<const vertice> punti, const contorno& penna, const Brush& fondo) {
  std::vector<Point> deposito;
  DC.Polygon(penna_di(penna), fondo, interi(punti, deposito));
}

void discerchio(DeviceContext& DC, vertice centro, vertice punto, const contorno& penna, const Brush& fondo) {
  const double dx = punto.x - centro.x;
  const double dy = punto.y - centro.y;
  const double r = std::sqrt(dx * dx + dy * dy);
  DC.Ellipse(penna_di(penna), fondo, punto_di({centro.x - r, centro.y - r}), punto_di({centro.x + r, centro.y + r}));
}

void Disarco(DeviceContext& DC, vertice p1, vertice p2, vertice p3, const contorno& penna) {
  double Xc = 0;
  double Yc = 0;
  double R = 0;
  cerchio_per_tre_punti(p1.x, p1.y, p2.x, p2.y, p3.x, p3.y, Xc, Yc, R);
  const Point centro = punto_di({Xc, Yc});
  const std::int64_t r = std::min<std::int64_t>(round_clamped(R), raggio_massimo);
  DC.Arc(penna_di(penna), {limitato(centro.x - r), limitato(centro.y - r)},
         {limitato(centro.x + r), limitato(centro.y + r)}, punto_di(p1), punto_di(p2));
}

void dis_testo(DeviceContext& DC, const testo& t, vertice posizione, float altezza, Color colore) {
  Font carattere;
  carattere.face = t.nome_carattere();
  carattere.height = round_clamped(altezza);
  if (carattere.height == 0) carattere.height = 1;
  carattere.escapement = round_clamped(t.angolo() * 10);
  carattere.weight = t.bold_testo != falso ? peso_bold : 0;
  carattere.italic = t.inclinato() != falso;
  carattere.underline = t.sottolineato_testo != falso;
  carattere.strikeout = t.barrato_testo != falso;

  std::string stringa = right_trimmed(t.stringa_testo);
  if (t.nCartesto > 0) stringa = text_left(stringa, static_cast<std::size_t>(t.nCartesto));
  DC.background = t.opaco_testo != falso ? Background{true, t.colore_opaco_testo} : Background{};
  DC.TextOutA(carattere, colore, punto_di(posizione), stringa);
  DC.background = {};
}

}  // namespace trelvo
