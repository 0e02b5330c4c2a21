// Where the objects of a collection lie: boxes by position, in packed trees. Knows positions and boxes, no objects.
//
// Eight objects that lie together, and are of like size, share one box, eight such boxes one of the next level, and so
// on up. An object that changes stays where it is as long as it keeps within the box that it shares; otherwise it
// leaves its tree for a new one of those that changed together, which takes in the trees before it that are not at
// least twice its size. So there are few trees, each change is paid by the objects that it moved, and none of the rest
// is touched. A tree costs about ten bytes an object.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace trelvo {

// Of an object in its collection, from 1.
using posizione_t = std::uint32_t;

// Bounds included; outermost values are infinite.
struct riquadro {
  float x1;
  float y1;
  float x2;
  float y2;

  // The least box of 32-bit floats about the bounds, and a little more. Bounds that are no numbers give everything.
  static riquadro intorno(double x1, double y1, double x2, double y2);
  static riquadro ovunque();

  bool tocca(const riquadro& r) const { return !(x2 < r.x1) && !(r.x2 < x1) && !(y2 < r.y1) && !(r.y2 < y1); }
  bool contiene(const riquadro& r) const { return x1 <= r.x1 && y1 <= r.y1 && r.x2 <= x2 && r.y2 <= y2; }
  void allarga(const riquadro& r);
};

class indice {
 public:
  // Makes room for so many changes.
  void attendi(std::size_t cambiamenti) { nuovi_.reserve(cambiamenti); }
  // The box of an object, new or changed, nullptr for none. Takes effect with the next `concludi`; one call an object
  // till then.
  void aggiorna(posizione_t posizione, const riquadro* r);
  // Ends a round of changes. Asks again for the boxes of objects that are moved on from smaller trees.
  void concludi(const std::function<riquadro(posizione_t)>& riquadro_di);

  // Adds to `trovate`, in no order, the positions of all objects whose box touches the zone, and some others. False as
  // soon as there would be more than so many.
  bool cerca(const riquadro& zona, std::size_t massimo, std::vector<posizione_t>& trovate) const;

  // Bytes taken.
  std::size_t memoria() const;

 private:
  struct voce {
    riquadro r;
    posizione_t posizione;
  };
  // Its leaves are the posts from `primo` on, eight a leaf; the lowest level comes first.
  struct albero {
    std::size_t primo;
    std::vector<std::vector<riquadro>> livelli;
  };
  static constexpr std::uint32_t nessuno = 0xFFFFFFFF;

  bool collocata(posizione_t posizione) const { return posizione < posti_.size() && posti_[posizione] != nessuno; }
  const riquadro& foglia_di(std::uint32_t posto) const;
  void togli(posizione_t posizione);
  void riprendi_ultimo(const std::function<riquadro(posizione_t)>& riquadro_di);
  void pianta();

  std::vector<albero> alberi_;
  std::vector<posizione_t> oggetti_;  // by post; 0 for none
  std::vector<std::uint32_t> posti_;  // by position
  std::size_t vivi_ = 0;
  std::vector<voce> nuovi_;  // of the present round
};

}  // namespace trelvo
