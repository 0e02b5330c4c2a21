// Values that tell their listeners when they change, reachable by name.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace trelvo {

class PropertyBase;

// A control or a form: holds properties under their names.
class PropertyOwner {
 public:
  PropertyOwner() = default;
  PropertyOwner(const PropertyOwner&) = delete;
  PropertyOwner& operator=(const PropertyOwner&) = delete;
  virtual ~PropertyOwner() = default;

  PropertyBase* property(std::string_view name) const;
  const std::vector<PropertyBase*>& properties() const { return properties_; }

 private:
  friend class PropertyBase;
  std::vector<PropertyBase*> properties_;
};

// Holds a listener: the listening ends with it, and it may outlive the property.
using Listening = std::shared_ptr<std::function<void()>>;

class PropertyBase {
 public:
  PropertyBase(PropertyOwner& owner, const char* name) : name_(name) { owner.properties_.push_back(this); }
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;
  virtual ~PropertyBase() = default;

  const char* name() const { return name_; }
  // Texts in double quotes, truth as -1 or 0, numbers with a point.
  virtual std::string shown() const = 0;
  // The reverse of `shown`, texts without their quotes. Error 13 for what cannot be read.
  virtual void assign(const std::string& text) = 0;
  // Whether the value is a text; all others are read from numbers.
  virtual bool holds_text() const = 0;

  // For as long as the property lives.
  void on_change(std::function<void()> listener);
  // For as long as the result lives.
  [[nodiscard]] Listening listen(std::function<void()> listener);

 protected:
  void tell();

 private:
  const char* name_;
  std::vector<std::function<void()>> listeners_;
  std::vector<std::weak_ptr<std::function<void()>>> guests_;
};

template <class T>
std::string shown_value(const T& value) {
  if constexpr (std::is_same_v<T, std::string>) {
    return trelvo::quoted(value);  // not the standard one, which a text would find
  } else if constexpr (std::is_same_v<T, bool>) {
    return value ? "-1" : "0";
  } else if constexpr (std::is_same_v<T, float>) {
    return shortest_text(value);
  } else {
    return shortest_text(static_cast<double>(value));
  }
}

template <class T>
T value_from(const std::string& text) {
  if constexpr (std::is_same_v<T, std::string>) {
    return text;
  } else {
    const double number = regional_number(text, RegionalFormat{".", ","});
    if constexpr (std::is_same_v<T, bool>) {
      return number != 0;
    } else if constexpr (std::is_integral_v<T>) {
      return static_cast<T>(round_to_int32(number));
    } else {
      return static_cast<T>(number);
    }
  }
}

template <class T>
class Property : public PropertyBase {
 public:
  Property(PropertyOwner& owner, const char* name, T value) : PropertyBase(owner, name), value_(std::move(value)) {}

  const T& get() const { return value_; }
  operator const T&() const { return value_; }
  Property& operator=(T value) {
    set(std::move(value));
    return *this;
  }
  Property& operator=(const Property& other) {
    set(other.value_);
    return *this;
  }
  // Listeners hear of it only when the value becomes another one.
  void set(T value) {
    if (value == value_) return;
    value_ = std::move(value);
    tell();
  }

  std::string shown() const override { return shown_value(value_); }
  void assign(const std::string& text) override { set(value_from<T>(text)); }
  bool holds_text() const override { return std::is_same_v<T, std::string>; }

 private:
  T value_;
};

// A value that its owner holds in its own way.
template <class T>
class LinkedProperty : public PropertyBase {
 public:
  LinkedProperty(PropertyOwner& owner, const char* name, std::function<T()> get, std::function<void(const T&)> set)
      : PropertyBase(owner, name), get_(std::move(get)), set_(std::move(set)) {}

  T get() const { return get_(); }
  operator T() const { return get_(); }
  LinkedProperty& operator=(const T& value) {
    set_(value);
    return *this;
  }

  std::string shown() const override { return shown_value(get_()); }
  void assign(const std::string& text) override { set_(value_from<T>(text)); }
  bool holds_text() const override { return std::is_same_v<T, std::string>; }

 private:
  std::function<T()> get_;
  std::function<void(const T&)> set_;
};

}  // namespace trelvo
