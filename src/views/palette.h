#pragma once
// The colours of the views, by their index in the classic palette of sixteen.

enum Palette {
  Blue = 1,
  Cyan = 3,
  LightGrey = 7,
  DarkGrey = 8,
  LightBlue = 9,
  LightRed = 12,
  LightMagenta = 13,
};
