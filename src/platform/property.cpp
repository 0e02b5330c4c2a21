#include "platform/property.h"

namespace trelvo {

PropertyBase* PropertyOwner::property(std::string_view name) const {
  for (PropertyBase* candidate : properties_) {
    if (name == candidate->name()) return candidate;
  }
  return nullptr;
}

void PropertyBase::on_change(std::function<void()> listener) { listeners_.push_back(std::move(listener)); }

Listening PropertyBase::listen(std::function<void()> listener) {
  auto slot = std::make_shared<std::function<void()>>(std::move(listener));
  std::erase_if(guests_, [](const auto& guest) { return guest.expired(); });
  guests_.push_back(slot);
  return slot;
}

void PropertyBase::tell() {
  // By index: a listener may add further ones.
  for (std::size_t i = 0; i < listeners_.size(); ++i) listeners_[i]();
  for (std::size_t i = 0; i < guests_.size(); ++i) {
    if (const auto guest = guests_[i].lock()) (*guest)();
  }
}

}  // namespace trelvo
