// Drawings of the kinds that are hard to find one's way in: rows on one level but for rounding, edges that lean by the
// last digit, sizes of all orders, arcs with points in line, numbers that are none, outlines without a vertex.
#pragma once

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "support/shapes.h"

namespace trelvo {

class RandomShapes {
 public:
  // `unit` scales everything; one coordinate in `rarity` is beyond all bounds.
  RandomShapes(unsigned seed, double unit, int rarity) : generator_(seed), unit_(unit), rarity_(rarity) {}

  int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(generator_); }
  double real(double from, double to) { return std::uniform_real_distribution<double>(from, to)(generator_); }
  bool one_in(int n) { return whole(1, n) == 1; }
  double unit() const { return unit_; }

  double at() {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (one_in(rarity_)) {
      const double odd[] = {infinity, -infinity, std::nan(""), 1e300, -1e155, 1e31, 3e38, 1e-320};
      return odd[whole(0, 7)];
    }
    return one_in(3) ? whole(-400, 400) * 0.1 * unit_ : real(-50, 50) * unit_;
  }
  double size() { return std::pow(10.0, real(-2, one_in(20) ? 3 : 1)) * unit_; }
  // The same but for rounding, at times.
  double beside(double v) {
    switch (whole(0, 3)) {
      case 0:
        return v;
      case 1:
        return std::nextafter(v, v + (one_in(2) ? 1 : -1));
      default:
        return v + std::pow(10.0, real(-17, -4)) * unit_ * (one_in(2) ? 50 : -50);
    }
  }
  vertice near(const vertice& v) {
    const double s = size();
    switch (whole(0, 4)) {
      case 0:
        return {beside(v.x), v.y + real(-s, s)};
      case 1:
        return {v.x + real(-s, s), beside(v.y)};
      case 2:
        return {v.x + (one_in(2) ? s : -s), v.y};
      default:
        return {v.x + real(-s, s), v.y + real(-s, s)};
    }
  }
  vertice spot() { return {at(), at()}; }
  std::vector<vertice> path(int count) {
    std::vector<vertice> all;
    for (int i = 0; i < count; ++i) all.push_back(i == 0 ? spot() : near(all.back()));
    return all;
  }

  void make(Linea& o) {
    const vertice a = spot();
    const vertice b = near(a);
    o = line(a.x, a.y, b.x, b.y);
    o.speslinea = static_cast<float>(whole(0, 4));
    o.TipoLinea = whole(0, 5);
    o.colorelinea = whole(0, 0xFFFFFF);
  }
  void make(Arco& o) {
    const auto p = path(3);
    o = arc(p[0], p[1], p[2]);
    if (one_in(8)) o = arc(p[0], p[1], {(p[0].x + p[1].x) / 2, (p[0].y + p[1].y) / 2});
    look(o);
  }
  void make(Cerchio& o) {
    const vertice centre = spot();
    o = circle(centre.x, centre.y, size());
    look(o);
    o.campitura = whole(0, 8);
  }
  void make(polilinea& o) {
    o = polyline(path(whole(0, 6)));
    look(o);
  }
  void make(superficie& o) {
    o = surface(path(whole(0, 6)));
    look(o);
    o.campitura = whole(0, 8);
  }
  void make(Rettangolo& o) {
    const vertice a = spot();
    const vertice b = near(a);
    o = rectangle(a.x, a.y, b.x, b.y);
    if (one_in(3)) o = closed<Rettangolo>({a, b, near(b), near(a)});
    look(o);
    o.campitura = whole(0, 8);
  }
  void make(testo& o) {
    const vertice a = spot();
    o = text(one_in(20) ? 0 : a.x, a.y, std::string(static_cast<std::size_t>(whole(0, 6)), 'a'),
             static_cast<float>(whole(0, 12)));
    const int angles[] = {0, 0, 90, 180, 270, 360, -90, 450, whole(-720, 720), whole(-720, 720)};
    o.ang_testo(angles[whole(0, 9)]);
    o.bold_testo = one_in(2) ? vero : falso;
  }

 private:
  template <class Object>
  void look(Object& o) {
    o.spescont = static_cast<float>(whole(0, 3));
    o.trattcont = whole(0, 5);
    o.colcont = whole(0, 0xFFFFFF);
  }

  std::mt19937 generator_;
  double unit_;
  int rarity_;
};

}  // namespace trelvo
