#pragma once
// The menus of the main window as data: captions, start states and handlers in one list, from which
// the handlers are bound and a face builds its menus.

#include <vector>

#include "controls/controls.h"

struct MenuRow {
  int depth;                 ///< 0 for a menu of the bar, 1 for its rows, 2 for those of a submenu
  const char* caption;       ///< "&" stands before the letter that reaches it by keyboard; "-" is a separator
  MenuItem* item = nullptr;  ///< null for separators and for what opens a menu
  void (*handler)() = nullptr;
  enum Start { Plain, Unchecked, Checked, Disabled } start = Plain;
};

/// The rows in their order on the screen; a row's submenu follows it.
const std::vector<MenuRow>& Form1Menus();

/// Fills the Click slot of every item and puts ticks and enabled states to those of the start.
void BindMenus();
