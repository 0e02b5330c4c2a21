// Controls and forms as plain objects. A form is a struct of controls under their own names; each control registers
// itself with its form, so that it can be found by its name as text, and carries its event handlers as functions.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/graphics.h"
#include "platform/property.h"

namespace trelvo {

struct Control;
struct MenuItem;

constexpr int no_index = -1;

constexpr int pointer_default = 0;
constexpr int pointer_hourglass = 11;
constexpr int pointer_own = 99;

constexpr int window_normal = 0;
constexpr int window_minimised = 1;
constexpr int window_maximised = 2;

struct Form : PropertyOwner {
  explicit Form(std::string name);

  const std::string name;
  Property<std::string> Caption{*this, "Caption", ""};
  Property<bool> Visible{*this, "Visible", false};
  Property<int> MousePointer{*this, "MousePointer", pointer_default};
  Property<int> WindowState{*this, "WindowState", window_normal};

  std::vector<Control*> controls;
  std::vector<MenuItem*> menus;  // the menu bar, in order

  // nullptr if there is none.
  Control* find(std::string_view control, int index = no_index) const;

  // Runs as the form is loaded, and before it is unloaded; setting the argument true keeps it open.
  std::function<void()> Load;
  std::function<void(bool& cancel)> QueryUnload;
  std::function<void()> Unloaded;
  // Runs once each time the form is shown as a modal window, when it is up.
  std::function<void()> Shown;
  std::function<void(int code)> KeyPress;
  std::function<void(int code)> KeyDown;

  void load();
  // As by the close box; false if the form refused.
  bool close();
  void unload();
  bool loaded() const { return loaded_; }

 private:
  bool loaded_ = false;
};

struct Control : PropertyOwner {
  Control(Form& form, std::string name, int index = no_index);

  Form& form;
  const std::string name;
  const int index;
  Property<bool> Visible{*this, "Visible", true};
  Property<bool> Enabled{*this, "Enabled", true};

  std::function<void()> Click;
  std::function<void()> MouseMove;

  // "Text1", "opfile(3)".
  std::string full_name() const;
};

template <class C>
class ControlArray {
 public:
  // Error 9 for an index that is not there.
  C& operator()(int index) const {
    const auto found = items_.find(index);
    if (found == items_.end()) throw RuntimeError(error_bad_index);
    return *found->second;
  }
  template <class... Arguments>
  C& add(Form& form, const char* name, int index, Arguments&&... arguments) {
    auto item = std::make_unique<C>(form, name, index, std::forward<Arguments>(arguments)...);
    return *(items_[index] = std::move(item));
  }
  const std::map<int, std::unique_ptr<C>>& items() const { return items_; }

 private:
  std::map<int, std::unique_ptr<C>> items_;
};

struct Label : Control {
  Label(Form& owner, std::string control, std::string caption = {}, int position = no_index)
      : Control(owner, std::move(control), position), Caption(*this, "Caption", std::move(caption)) {}
  Property<std::string> Caption;
  Property<Color> ForeColor{*this, "ForeColor", 0};
  Property<Color> BackColor{*this, "BackColor", 0xFFFFFF};
  Property<std::string> ToolTipText{*this, "ToolTipText", ""};
  Property<float> Left{*this, "Left", 60};
  Property<float> Width{*this, "Width", 2400};
};

// A text in a font of its own. The size is in points.
struct SampleLabel : Label {
  using Label::Label;
  Property<std::string> FontName{*this, "FontName", "Arial"};
  Property<float> FontSize{*this, "FontSize", 8};
  Property<bool> FontBold{*this, "FontBold", false};
  Property<bool> FontItalic{*this, "FontItalic", false};
  Property<bool> FontUnderline{*this, "FontUnderline", false};
  Property<bool> FontStrikethru{*this, "FontStrikethru", false};
};

struct TextBox : Control {
  explicit TextBox(Form& owner, std::string control, int position = no_index)
      : Control(owner, std::move(control), position) {}
  Property<std::string> Text{*this, "Text", ""};
  Property<bool> Locked{*this, "Locked", false};
  Property<Color> ForeColor{*this, "ForeColor", 0};
  Property<Color> BackColor{*this, "BackColor", 0xFFFFFF};
  Property<float> Width{*this, "Width", 2400};
  // The selected part, in characters.
  Property<int> SelStart{*this, "SelStart", 0};
  Property<int> SelLength{*this, "SelLength", 0};
  // A handler may turn the code into another one, or into 0 to swallow the key.
  std::function<void(int& code)> KeyPress;
  std::function<void(int code)> KeyDown;
};

struct Button : Control {
  Button(Form& owner, std::string control, std::string caption)
      : Control(owner, std::move(control)), Caption(*this, "Caption", std::move(caption)) {}
  Property<std::string> Caption;
  Property<std::string> ToolTipText{*this, "ToolTipText", ""};
};

// Exactly one of a group is on: whoever sets one true, its handlers of Value set the others false.
struct OptionButton : Control {
  OptionButton(Form& owner, std::string control, std::string caption)
      : Control(owner, std::move(control)), Caption(*this, "Caption", std::move(caption)) {}
  OptionButton(Form& owner, std::string control, int position)
      : Control(owner, std::move(control), position), Caption(*this, "Caption", "") {}
  Property<std::string> Caption;
  Property<bool> Value{*this, "Value", false};
};

// Makes option buttons one group; `chosen` runs with the position of the one that is turned on.
void group_options(const std::vector<OptionButton*>& options, const std::function<void(std::size_t)>& chosen);

// Click runs whenever the value becomes another one.
struct CheckBox : Control {
  CheckBox(Form& owner, std::string control, std::string caption);
  Property<std::string> Caption;
  Property<int> Value{*this, "Value", 0};  // 1 for ticked
};

// Rows of text, counted from 0. Click runs whenever another row is chosen.
struct ListBox : Control {
  explicit ListBox(Form& owner, std::string control, int position = no_index);
  Property<int> ListIndex{*this, "ListIndex", -1};  // -1 for none
  Property<int> ListCount{*this, "ListCount", 0};
  Property<int> TopIndex{*this, "TopIndex", 0};  // first row in view

  // Error 9 for a row that is not there.
  const std::string& List(int row) const;
  // At the end, or before the row `at`. Error 9 for a place beyond the end.
  void AddItem(std::string text, int at = no_index);
  // A chosen row that goes away leaves none chosen. Error 9.
  void RemoveItem(int row);
  void Clear();
  // Grows with each change of the rows.
  Property<int> version{*this, "version", 0};

 private:
  void rows_changed();
  std::vector<std::string> rows_;
};

struct Frame : Control {
  Frame(Form& owner, std::string control, std::string caption)
      : Control(owner, std::move(control)), Caption(*this, "Caption", std::move(caption)) {}
  Property<std::string> Caption;
};

struct ScrollBar : Control {
  using Control::Control;
  Property<int> Min{*this, "Min", 0};
  Property<int> Max{*this, "Max", 100};
  Property<int> SmallChange{*this, "SmallChange", 1};
  Property<int> LargeChange{*this, "LargeChange", 10};
  Property<int> Value{*this, "Value", 0};
};

struct ProgressBar : Control {
  using Control::Control;
  Property<float> Max{*this, "Max", 100};
  Property<float> Value{*this, "Value", 0};
};

// A strip or a picture box, without its surface.
struct PictureBox : Control {
  using Control::Control;
  // Over a box that has a surface, in its logical units.
  std::function<void(float x, float y)> SurfaceMouseMove;
  Property<float> Left{*this, "Left", 0};
  Property<float> Top{*this, "Top", 0};
  Property<float> Width{*this, "Width", 0};
  Property<float> Height{*this, "Height", 0};
  Property<Color> BackColor{*this, "BackColor", 0xFFFFFF};
  Property<std::string> ToolTipText{*this, "ToolTipText", ""};
};

constexpr int key_f6 = 117;
constexpr int key_f7 = 118;
constexpr int key_f8 = 119;
constexpr int key_f9 = 120;
// Added to the code of a letter in a menu's shortcut.
constexpr int key_control = 0x100;
constexpr int key_shift = 0x200;
constexpr int key_enter = 13;
constexpr int key_escape = 27;

// A caption of "-" is a separator. Click of an item that holds others runs as its menu opens.
struct MenuItem : Control {
  MenuItem(Form& owner, std::string control, int position, std::string caption, MenuItem* parent, int shortcut = 0);
  Property<std::string> Caption;
  Property<bool> Checked{*this, "Checked", false};
  MenuItem* const parent;
  const int shortcut;  // key code, 0 for none
  std::vector<MenuItem*> items;
};

struct ToolButton {
  std::string tip;  // empty: a separator
  std::string icon;
};

struct Toolbar : Control {
  Toolbar(Form& owner, std::string control, int position, std::vector<ToolButton> tools)
      : Control(owner, std::move(control), position), buttons(std::move(tools)) {}
  const std::vector<ToolButton> buttons;  // button n is at n - 1
  Property<float> ButtonWidth{*this, "ButtonWidth", 390};
  std::function<void(int button)> ButtonClick;
};

}  // namespace trelvo
