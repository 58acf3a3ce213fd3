#pragma once
// What a user can lay hands on, as data: every control of the five windows, the menus, the windows
// themselves, and the world around the program. A new control needs one line in the list.
//
// A hand acts only where a face would let it: on a window that is visible, on a control that is visible
// where it has that property, on a menu item that is enabled; and while the modal window is open, on
// that window and the clock alone.

#include <functional>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "monkey/stream.h"

struct Hand {
  std::string name;
  const Window* window;           ///< null for what comes from outside of the windows
  int weight;                     ///< how often it acts, against the others
  std::function<bool()> offered;  ///< null for always
  std::function<void(Stream&)> act;
};

/// The program must have been reset before the first call.
const std::vector<Hand>& Hands();

/// One act of the user: chooses among what is offered now, tells it, and does it.
void ActOnce(Stream& stream);
