#include "view/selezione_mira.h"

#include "geometry/mira.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

template <class Oggetto>
bool spezzata(const Oggetto& o, const mira& m, bool chiusa) {
  std::size_t lato = 0;
  return spezzata_in_mira(m.X, m.Y, m.R, o.vertici.tutti(), chiusa, lato);
}

}  // namespace

double raggio_mira(const distipo& doc) { return doc.Shape2.Width.get() / 2.0 / doc.vista.rapscala; }

bool in_mira(distipo& /*doc*/, const Linea& o, const mira& m) {
  return segmento_in_mira(m.X, m.Y, m.R, o.Xi, o.Yi, o.Xf, o.Yf);
}
bool in_mira(distipo& /*doc*/, const Arco& o, const mira& m) {
  return arco_in_mira(m.X, m.Y, m.R, o.p1x, o.p1y, o.p2x, o.p2y, o.p3x, o.p3y);
}
bool in_mira(distipo& /*doc*/, const Cerchio& o, const mira& m) {
  return cerchio_in_mira(m.X, m.Y, m.R, o.Xcentro, o.Ycentro, o.raggio);
}
bool in_mira(distipo& /*doc*/, const polilinea& o, const mira& m) { return spezzata(o, m, false); }
bool in_mira(distipo& /*doc*/, const Rettangolo& o, const mira& m) { return spezzata(o, m, true); }
bool in_mira(distipo& /*doc*/, const superficie& o, const mira& m) { return spezzata(o, m, true); }
bool in_mira(distipo& doc, const testo& o, const mira& m) {
  return testo_in_mira(m.X, m.Y, m.R, riquadro_mondo(doc, o));
}

}  // namespace trelvo
