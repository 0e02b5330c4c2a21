#include "platform/controls.h"

#include <algorithm>

#include "platform/overlay.h"

namespace trelvo {

Form::Form(std::string form_name) : name(std::move(form_name)) {}

Control* Form::find(std::string_view control, int index) const {
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* candidate) {
    return candidate->name == control && candidate->index == index;
  });
  return found == controls.end() ? nullptr : *found;
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  if (!Load) return;
  try {
    Load();
  } catch (...) {
    loaded_ = false;
    throw;
  }
}

bool Form::close() {
  bool cancel = false;
  if (QueryUnload) QueryUnload(cancel);
  if (cancel) return false;
  unload();
  return true;
}

void Form::unload() {
  if (!loaded_) return;
  loaded_ = false;
  Visible = false;
  if (Unloaded) Unloaded();
}

Control::Control(Form& owner, std::string control, int position)
    : form(owner), name(std::move(control)), index(position) {
  form.controls.push_back(this);
}

std::string Control::full_name() const { return index == no_index ? name : name + "(" + std::to_string(index) + ")"; }

MenuItem::MenuItem(Form& owner, std::string control, int position, std::string caption, MenuItem* above, int key)
    : Control(owner, std::move(control), position),
      Caption(*this, "Caption", std::move(caption)),
      parent(above),
      shortcut(key) {
  (parent != nullptr ? parent->items : form.menus).push_back(this);
}

CheckBox::CheckBox(Form& owner, std::string control, std::string caption)
    : Control(owner, std::move(control)), Caption(*this, "Caption", std::move(caption)) {
  Value.on_change([this] {
    if (Click) Click();
  });
}

ListBox::ListBox(Form& owner, std::string control, int position) : Control(owner, std::move(control), position) {
  ListIndex.on_change([this] {
    if (ListIndex >= 0 && Click) Click();
  });
}

const std::string& ListBox::List(int row) const {
  if (row < 0 || row >= ListCount) throw RuntimeError(error_bad_index);
  return rows_[static_cast<std::size_t>(row)];
}

void ListBox::AddItem(std::string text, int at) {
  const int place = at == no_index ? ListCount.get() : at;
  if (place < 0 || place > ListCount) throw RuntimeError(error_bad_index);
  rows_.insert(rows_.begin() + place, std::move(text));
  rows_changed();
}

void ListBox::RemoveItem(int row) {
  if (row < 0 || row >= ListCount) throw RuntimeError(error_bad_index);
  rows_.erase(rows_.begin() + row);
  if (ListIndex == row) ListIndex = -1;
  rows_changed();
}

void ListBox::Clear() {
  rows_.clear();
  ListIndex = -1;
  TopIndex = 0;
  rows_changed();
}

void ListBox::rows_changed() {
  ListCount = static_cast<int>(rows_.size());
  version = version + 1;
}

void group_options(const std::vector<OptionButton*>& options, const std::function<void(std::size_t)>& chosen) {
  for (std::size_t i = 0; i < options.size(); ++i) {
    options[i]->Value.on_change([options, chosen, i] {
      if (!options[i]->Value) return;
      for (std::size_t j = 0; j < options.size(); ++j) {
        if (j != i) options[j]->Value = false;
      }
      if (chosen) chosen(i);
    });
  }
}

OverlayLine::OverlayLine(Form& owner, std::string control) : Control(owner, std::move(control)) { Visible = false; }

OverlayShape::OverlayShape(Form& owner, std::string control) : Control(owner, std::move(control)) { Visible = false; }

}  // namespace trelvo
