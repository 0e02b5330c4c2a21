#include <string>

#include "model/tavolozza.h"
#include "platform/desktop.h"
#include "platform/text.h"
#include "view/figure.h"
#include "view/pittura.h"

namespace trelvo {

namespace {

// Twice the height that the logical size alone would give.
constexpr double fattore_altezza = -2;
// The measured extent is brought to drawing size by rapscala over this.
constexpr double divisore_riquadro = 10;

void bordo_testo(distipo& doc, const riquadro_testo& r) {
  const Color colore = colore_contrasto(doc);
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t j = (i + 1) % 4;
    doc.surface.Line(r.x[i], r.y[i], r.x[j], r.y[j], colore);
  }
}

// Measures with the window's own font.
Size misura_testo(Surface& s, const testo& t) {
  s.font = carattere_di(t);
  return s.GetTextExtentPoint32A(right_trimmed(t.stringa_testo));
}

}  // namespace

SurfaceFont carattere_di(const testo& t) {
  return {t.nome_carattere(),
          t.dimens_testo,
          t.bold_testo != falso,
          t.corsivo_testo() != falso,
          t.sottolineato_testo != falso,
          t.barrato_testo != falso};
}

vertice ingombro_testo(distipo& doc, const testo& t) {
  Surface& s = doc.surface;
  const Size misura = misura_testo(s, t);
  return {s.ScaleX(misura.width, scale_pixels, s.ScaleMode) / divisore_riquadro,
          s.ScaleY(misura.height, scale_pixels, s.ScaleMode) / divisore_riquadro};
}

riquadro_testo determvert_testo(distipo& doc, const testo& t, double X1, double Y1) {
  Surface& s = doc.surface;
  const Size misura = misura_testo(s, t);
  const double scala = doc.vista.rapscala;
  const double W = s.ScaleX(misura.width, scale_pixels, s.ScaleMode) * scala / divisore_riquadro;
  const double H = s.ScaleY(misura.height, scale_pixels, s.ScaleMode) * scala / divisore_riquadro;
  return vertici_testo(X1, Y1, W, H, t.ang_testo());
}

riquadro_testo riquadro_mondo(distipo& doc, const testo& t) {
  const double scala = doc.vista.rapscala;
  riquadro_testo r = determvert_testo(doc, t, t.pos_testox * scala, t.pos_testoy * scala);
  for (std::size_t i = 0; i < 4; ++i) {
    r.x[i] /= scala;
    r.y[i] /= scala;
  }
  return r;
}

void disegnatesto(distipo& doc, const testo& t, bool usacoloriproprio) {
  if (!(t.dimens_testo > 0)) return;
  Surface& s = doc.surface;
  const double scala = doc.vista.rapscala;
  const double X1 = t.pos_testox * scala;
  const double Y1 = t.pos_testoy * scala;
  s.font.size = t.dimens_testo;
  const auto altezza = static_cast<float>(t.dimens_testo * scala * fattore_altezza / Desktop::TwipsPerPixelY);
  if (altezza == 0) {
    s.PSet(X1, Y1, 0);
    return;
  }
  s.PSet(s.ScaleLeft, s.ScaleTop, 0);
  s.font.name = t.nome_carattere();
  s.font.italic = t.corsivo_testo() != falso;
  s.font.underline = t.sottolineato_testo != falso;
  s.font.strikethru = t.barrato_testo != falso;
  const bool bordo = doc.imp.bordotesto == 1;
  const riquadro_testo angoli = bordo ? determvert_testo(doc, t, X1, Y1) : riquadro_testo{};

  s.ForeColor = usacoloriproprio ? t.colore_testo : colore_contrasto(doc);
  const vertice posizione{s.ScaleX(X1 - s.ScaleLeft, s.ScaleMode, scale_pixels),
                          s.ScaleY(Y1 - s.ScaleTop, s.ScaleMode, scale_pixels)};
  dis_testo(s.hDC(), t, posizione, altezza, s.ForeColor);
  if (bordo) bordo_testo(doc, angoli);
}

}  // namespace trelvo
