#include "model/indice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <random>

namespace trelvo {
namespace {

// An index and what it should hold.
struct Places {
  indice index;
  std::map<posizione_t, riquadro> boxes;
  std::mt19937 generator{7};

  float at(float low, float high) { return std::uniform_real_distribution<float>(low, high)(generator); }
  riquadro box() {
    const float size = at(0, 1) < 0.02F ? 500 : at(0, 9);
    const float x = at(-1000, 1000);
    const float y = at(-1000, 1000);
    return {x, y, x + size, y + size};
  }
  void change(posizione_t first, posizione_t last, bool away = false) {
    for (posizione_t p = first; p <= last; ++p) {
      if (away) {
        boxes.erase(p);
        index.aggiorna(p, nullptr);
      } else {
        boxes[p] = box();
        index.aggiorna(p, &boxes[p]);
      }
    }
    index.concludi([this](posizione_t p) { return boxes.at(p); });
  }
  std::vector<posizione_t> asked(const riquadro& zone) {
    std::vector<posizione_t> found;
    EXPECT_TRUE(index.cerca(zone, boxes.size() + 100, found));
    std::sort(found.begin(), found.end());
    return found;
  }
  // Everything that touches is found, once, and not much else.
  void expect_right() {
    for (int i = 0; i < 20; ++i) {
      const riquadro zone = box();
      const std::vector<posizione_t> found = asked(zone);
      EXPECT_TRUE(std::adjacent_find(found.begin(), found.end()) == found.end());
      for (const auto& [position, r] : boxes) {
        EXPECT_TRUE(!r.tocca(zone) || std::binary_search(found.begin(), found.end(), position)) << position;
      }
      EXPECT_LE(found.size(), 300 + boxes.size() / 4);
    }
  }
};

TEST(Index, FollowsEveryChange) {
  Places p;
  p.expect_right();
  p.change(1, 5000);
  p.expect_right();
  for (int i = 0; i < 60; ++i) {
    const auto first = static_cast<posizione_t>(1 + p.generator() % 5000);
    p.change(first, first + static_cast<posizione_t>(p.generator() % 400), i % 3 == 0);
    if (i % 5 == 0) p.expect_right();
  }
  for (posizione_t position = 5401; position < 5600; ++position) p.change(position, position);
  p.expect_right();
  EXPECT_LT(p.index.memoria(), 25 * p.boxes.size());
  p.change(1, 5600, true);
  EXPECT_TRUE(p.asked(riquadro::ovunque()).empty());
}

TEST(Index, EveryPlaceAlike) {
  Places p;
  const riquadro r{5, 5, 5, 5};
  for (posizione_t i = 1; i <= 1000; ++i) p.index.aggiorna(i, &r);
  p.index.concludi([&](posizione_t /*p*/) { return r; });
  std::vector<posizione_t> found;
  EXPECT_TRUE(p.index.cerca({5, 5, 6, 6}, 1000, found));
  EXPECT_EQ(found.size(), 1000U);
  found.clear();
  EXPECT_FALSE(p.index.cerca({5, 5, 6, 6}, 100, found));
  EXPECT_LT(found.size(), 120U) << "gives up in time";
  found.clear();
  EXPECT_TRUE(p.index.cerca({6, 6, 7, 7}, 100, found));
  EXPECT_TRUE(found.empty());
}

TEST(Index, BoxesHoldWhatTheyAreMadeFor) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double v : {0.0, 0.1, -0.1, 1e-320, 1e300, -1e300, 16777217.0, infinity, -infinity}) {
    const riquadro r = riquadro::intorno(v, v, v, v);
    EXPECT_LE(r.x1, v);
    EXPECT_GE(r.x2, v);
  }
  EXPECT_TRUE(riquadro::intorno(std::numeric_limits<double>::quiet_NaN(), 0, 1, 1).contiene(riquadro::ovunque()));
}

}  // namespace
}  // namespace trelvo
