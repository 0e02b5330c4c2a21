// Objects for tests, by their points; texts that tell a drawing bit by bit, and what was painted.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

#include "document/distipo.h"
#include "geometry/misure.h"

namespace trelvo {

inline Linea line(double x1, double y1, double x2, double y2) {
  Linea o;
  o.Xi = x1;
  o.Yi = y1;
  o.Xf = x2;
  o.Yf = y2;
  return o;
}

// From p1 to p2 through p3.
inline Arco arc(vertice p1, vertice p2, vertice p3) {
  Arco o;
  o.p1x = p1.x;
  o.p1y = p1.y;
  o.p2x = p2.x;
  o.p2y = p2.y;
  o.p3x = p3.x;
  o.p3y = p3.y;
  return o;
}

inline Cerchio circle(double x, double y, double radius) {
  Cerchio o;
  o.Xcentro = x;
  o.Ycentro = y;
  o.Xpunto = x + radius;
  o.YPunto = y;
  const misure_cerchio m = misure_di_cerchio(x, y, o.Xpunto, y);
  o.raggio = m.raggio;
  o.perimet = m.perimet;
  o.supf = m.supf;
  o.campitura = 7;
  return o;
}

template <class Outline>
Outline outline(const std::vector<vertice>& vertices) {
  Outline o;
  o.vertic(static_cast<std::int16_t>(vertices.size()));
  int i = 0;
  for (const vertice& v : vertices) o.vertici.inserisci(v.x, v.y, ++i);
  return o;
}

inline polilinea polyline(const std::vector<vertice>& vertices) { return outline<polilinea>(vertices); }

template <class Outline>
Outline closed(const std::vector<vertice>& vertices) {
  Outline o = outline<Outline>(vertices);
  o.perimet = perimetro(o.vertici.tutti());
  o.supf = area(o.vertici.tutti());
  o.campitura = 7;
  return o;
}
inline superficie surface(const std::vector<vertice>& vertices) { return closed<superficie>(vertices); }
inline Rettangolo rectangle(double x1, double y1, double x2, double y2) {
  return closed<Rettangolo>({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}});
}

inline testo text(double x, double y, const std::string& words, float size = 2) {
  testo o;
  o.stringa_testo = words;
  o.carattere_testo("Arial");
  o.dimens_testo = size;
  o.pos_testox = x;
  o.pos_testoy = y;
  return o;
}

template <class Object>
Object& add(distipo& doc, Object o) {
  return collezione_di<Object>(doc.dis).aggiungi(std::move(o));
}

// Every bit of what an edit or a selection could touch.
class Telling {
 public:
  template <class Object>
  void operator()(const Object& o) {
    if constexpr (requires { o.Xi; }) {
      numbers({o.Xi, o.Yi, o.Xf, o.Yf, double(o.vert1_selez), double(o.vert2_selez), double(o.colorelinea), o.speslinea,
               double(o.TipoLinea)});
    } else if constexpr (requires { o.p1x; }) {
      numbers({o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y, double(o.vert1_selez), double(o.vert2_selez),
               double(o.colcont), o.spescont, double(o.trattcont)});
    } else if constexpr (requires { o.raggio; }) {
      numbers({o.Xcentro, o.Ycentro, o.Xpunto, o.YPunto, o.raggio, o.perimet, o.supf, double(o.campitura)});
    } else if constexpr (requires { o.pos_testox; }) {
      numbers({o.pos_testox, o.pos_testoy, o.angolo(), o.dimens_testo, double(o.inclinato()), double(o.nCartesto)});
      words += o.stringa_testo + o.carattere_testo();
    } else {
      for (int i = 0; i <= o.vertic(); ++i) {
        numbers({o.vertici.preleva(i).x, o.vertici.preleva(i).y, double(o.prel_vertselez(i))});
      }
      if constexpr (requires { o.supf; }) numbers({o.perimet, o.supf});
    }
    numbers({double(o.stato), double(o.stampare)});
    words += '\n';
  }
  std::string words;

 private:
  void numbers(std::initializer_list<double> values) {
    for (const double v : values) {
      char buffer[40];
      std::snprintf(buffer, sizeof buffer, "%a ", v);
      words += buffer;
    }
  }
};

inline std::string told(const disegno& dis) {
  Telling telling;
  visita<superficie, Rettangolo, Linea, polilinea, testo, Arco, Cerchio>(dis, [&](const auto& o) { telling(o); });
  return telling.words;
}

// The calls of the surface and its context while it lives, without those that only prepare the context.
class Calls {
 public:
  explicit Calls(distipo& doc) : doc_(doc) {
    doc.surface.trace = [this](const std::string& call) {
      if (!call.starts_with("PSet ")) lines.push_back(call);
    };
    doc.surface.hDC().trace = doc.surface.trace;
  }
  Calls(const Calls&) = delete;
  Calls& operator=(const Calls&) = delete;
  ~Calls() {
    doc_.surface.trace = nullptr;
    doc_.surface.hDC().trace = nullptr;
  }

  // The classes painted, in order; a polygon of four is a rectangle.
  std::string classes() const {
    std::string all;
    for (const std::string& call : lines) {
      const auto has = [&](const char* part) { return call.find(part) != std::string::npos; };
      all += has("Polygon")    ? (has(" 4: ") ? "R" : "S")
             : has("Polyline") ? "P"
             : has("Ellipse")  ? "C"
             : has("Arc ")     ? "A"
             : has("TextOut")  ? "T"
             : has("Cls")      ? "-"
                               : "L";
    }
    return all;
  }

  std::vector<std::string> lines;

 private:
  distipo& doc_;
};

}  // namespace trelvo
