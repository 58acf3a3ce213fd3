#pragma once
// The contract of controls: each is state plus events. A face (the window program, the command line
// program, a test) shows the state and passes the user's acts in; a handler reads and sets the
// state and never knows which face there is.

#include <array>
#include <string>

#include "controls/property.h"

struct Label {
  Property<std::string> Caption;
};

struct TextBox {
  Event<> Change;
  Property<std::string> Text{Change};
};

struct CheckBox {
  explicit CheckBox(bool checked = false) : Value(Click, checked) {}
  Event<> Click;
  Property<bool> Value;
};

/// One of a pair: choosing it takes the choice from the other.
class OptionButton {
 public:
  explicit OptionButton(OptionButton* other) : Value(chosen_) {
    chosen_ = [this, other] {
      if (Value) {
        other->Value = false;
      }
      Click();
    };
  }
  Event<> Click;

 private:
  Event<> chosen_;

 public:
  Property<bool> Value;
};

struct CommandButton {
  Event<> Click;
};

struct MenuItem {
  Event<> Click;
  Property<bool> Checked;
  Property<bool> Enabled{true};
};

/// The ends may be reversed (Min above Max); the value then lies between Max and Min.
class ScrollBar {
 public:
  ScrollBar(int min, int max, int value) : Min(min), max_(max), Value_(Change, value) {}

  Event<> Change;
  /// Setting it never moves the value.
  Property<int> Min;

  int Max() const { return max_; }
  /// A value beyond the new end is brought to the nearer of the two ends, which raises Change.
  void SetMax(int max);

  int Value() const { return Value_; }
  /// A value outside of the two ends is a failed statement.
  void SetValue(int value);

 private:
  int Low() const { return *Min < max_ ? *Min : max_; }
  int High() const { return *Min < max_ ? max_ : *Min; }

  int max_;
  Property<int> Value_;
};

/// A list of the files of one folder; what the user's click leaves chosen.
struct FileListBox {
  Event<> Click;
  Property<std::string> FileName;
  /// Reads the folder anew.
  Event<> Refresh;
};

/// Panels are numbered from 1 to 7.
struct StatusBar {
  std::array<Property<std::string>, 8> Panels;
};
