#pragma once
// A slot that somebody above may fill, with a do-nothing default: the one way in which a lower
// floor speaks to a higher one.

#include <functional>
#include <utility>

template <class... Arguments>
class Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  /// Puts a handler into the slot in place of the one before; nullptr empties it.
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  /// Runs the handler, if there is one.
  void operator()(Arguments... arguments) const {
    if (handler_) {
      handler_(arguments...);
    }
  }

 private:
  Handler handler_;
};
