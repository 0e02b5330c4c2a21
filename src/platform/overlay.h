// Line and shape controls that float above a surface, positions in its logical units.
#pragma once

#include "platform/controls.h"

namespace trelvo {

struct OverlayLine : Control {
  OverlayLine(Form& form, std::string name);
  Property<float> X1{*this, "X1", 0};
  Property<float> Y1{*this, "Y1", 0};
  Property<float> X2{*this, "X2", 0};
  Property<float> Y2{*this, "Y2", 0};
  Property<int> BorderStyle{*this, "BorderStyle", 1};
  Property<int> BorderWidth{*this, "BorderWidth", 1};
  Property<Color> BorderColor{*this, "BorderColor", 0};
};

struct OverlayShape : Control {
  OverlayShape(Form& form, std::string name);
  Property<float> Left{*this, "Left", 0};
  Property<float> Top{*this, "Top", 0};
  Property<float> Width{*this, "Width", 0};
  Property<float> Height{*this, "Height", 0};
  Property<int> Shape{*this, "Shape", 0};
  Property<int> BorderStyle{*this, "BorderStyle", 1};
  Property<int> BorderWidth{*this, "BorderWidth", 1};
  Property<Color> BorderColor{*this, "BorderColor", 0};
  Property<int> FillStyle{*this, "FillStyle", 1};
  Property<Color> FillColor{*this, "FillColor", 0};
  Property<int> DrawMode{*this, "DrawMode", 13};
};

}  // namespace trelvo
