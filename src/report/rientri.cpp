#include "report/rientri.h"

#include <cmath>

#include "platform/numbers.h"
#include "report/videoscritt.h"

namespace trelvo {

namespace {

constexpr double twip_a_cm = 1440 / 2.54;
constexpr double rientro_massimo = 50;  // cm

std::string in_cm(int twip, const RegionalFormat& formato) { return fixed_text(twip / twip_a_cm, 2, formato); }

// An entry that was left as it was keeps the indent to the twip.
int letto(const TextBox& casella, int prima, const RegionalFormat& formato) {
  const std::string& testo = casella.Text;
  if (testo == in_cm(prima, formato)) return prima;
  const double cm = regional_number(testo, formato);
  if (std::abs(cm) > rientro_massimo) throw RuntimeError(error_overflow);
  return static_cast<int>(std::lround(cm * twip_a_cm));
}

void mostra(videoscritt& v) {
  const RegionalFormat formato = v.desktop.regional();
  const formatoparagrafo p = v.RichTextBox1.formato_paragrafo();
  v.rientri.Text1.Text = in_cm(p.sinistro, formato);
  v.rientri.Text2.Text = in_cm(p.destro, formato);
  v.rientri.Text3.Text = in_cm(p.primariga, formato);
  v.desktop.set_focus(&v.rientri.Text1);
}

void conferma(videoscritt& v) {
  const RegionalFormat formato = v.desktop.regional();
  const formatoparagrafo prima = v.RichTextBox1.formato_paragrafo();
  const int sinistro = letto(v.rientri.Text1, prima.sinistro, formato);
  const int destro = letto(v.rientri.Text2, prima.destro, formato);
  const int primariga = letto(v.rientri.Text3, prima.primariga, formato);
  v.RichTextBox1.cambia_paragrafi([&](formatoparagrafo& p) {
    p.sinistro = sinistro;
    p.destro = destro;
    p.primariga = primariga;
  });
  v.rientri.unload();
}

}  // namespace

void prepara_rientri(videoscritt& v) {
  v.rientri.Shown = [&v] { mostra(v); };
  v.rientri.Command1.Click = [&v] { conferma(v); };
  v.rientri.Command2.Click = [&v] { v.rientri.unload(); };
}

}  // namespace trelvo
