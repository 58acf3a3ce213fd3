#pragma once
// A value of a control. Assigning a new value shows it on the face and then raises the control's
// event, whether the user's hand or a handler assigns it; assigning the value it has does nothing.

#include <utility>

#include "base/event.h"

template <class Value>
class Property {
 public:
  /// A property without an event, such as a caption or a tick.
  explicit Property(Value start = Value()) : value_(std::move(start)) {}
  /// A property whose change raises an event of its control.
  explicit Property(const Event<>& changed, Value start = Value())
      : value_(std::move(start)), changed_(&changed) {}

  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  operator const Value&() const { return value_; }
  const Value& operator*() const { return value_; }
  const Value* operator->() const { return &value_; }

  Property& operator=(Value value) {
    if (value == value_) {
      return *this;
    }
    value_ = std::move(value);
    Show();
    if (changed_ != nullptr) {
      (*changed_)();
    }
    return *this;
  }

  /// The face's slot: put the value on the screen.
  Event<> Show;

 private:
  Value value_;
  const Event<>* changed_ = nullptr;
};
