#include "windows/fit_to_screen.h"

#include <algorithm>

#include "document/geststamp.h"

namespace trelvo {

namespace {

constexpr double pixels_per_millimetre = 96 / 25.4;
constexpr int beside = 40;   // the dialog's margins and frame
constexpr int around = 170;  // its title, and what stands below the sheet
constexpr int least = 200;   // a sheet that can still be looked at

float room(float wanted, int pixels) {
  return std::min(wanted, static_cast<float>(std::max(pixels, least) / pixels_per_millimetre));
}

}  // namespace

void fit_to_screen(Form& form, const QSize& screen) {
  if (auto* sheet = dynamic_cast<GeststampForm*>(&form)) {
    sheet->ScaleWidth = room(GeststampForm::larghezza, screen.width() - beside);
    sheet->ScaleHeight = room(GeststampForm::altezza, screen.height() - around);
  }
}

}  // namespace trelvo
