#include "printing/spesslin.h"

#include <array>
#include <cmath>

#include "platform/numbers.h"
#include "platform/text.h"

namespace trelvo {

namespace {

void Form_Load(trelvobas& bas) {
  SpesslinForm& f = bas.Spesslin;
  for (int i = 0; i < numero_colori; ++i) {
    f.Picture3(i).BackColor = tavolozza(i);
    f.Text1(i).Text = regional_text(bas.spessoristampa[static_cast<std::size_t>(i)], bas.desktop.regional());
  }
}

// All boxes are read before any thickness changes.
void Command1_Click(trelvobas& bas) {
  SpesslinForm& f = bas.Spesslin;
  std::array<float, numero_colori> letti{};
  for (int i = 0; i < numero_colori; ++i) {
    const auto spessore = static_cast<float>(regional_number(f.Text1(i).Text.get(), bas.desktop.regional()));
    if (!std::isfinite(spessore)) throw RuntimeError(error_overflow);
    letti[static_cast<std::size_t>(i)] = spessore;
  }
  bas.spessoristampa = letti;
  if (bas.attivo() != nullptr) bas.salvafileini_dis(*bas.attivo());
  f.unload();
}

}  // namespace

void prepara_Spesslin(trelvobas& bas) {
  SpesslinForm& f = bas.Spesslin;
  f.Load = [&bas] { Form_Load(bas); };
  for (const auto& [indice, casella] : f.Text1.items()) {
    casella->KeyPress = [&bas](int& codice) {
      if (codice == '.') codice = static_cast<unsigned char>(to_code_page(bas.desktop.regional().decimal).front());
    };
  }
  f.Command1.Click = [&bas] { Command1_Click(bas); };
  f.Command2.Click = [&f] { f.unload(); };
}

}  // namespace trelvo
