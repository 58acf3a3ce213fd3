#pragma once
// The classic palette of sixteen colours, which drawing calls name by index.

#include <QColor>
#include <array>
#include <cstddef>

/// Black for an index outside, and so for the foreground.
inline QColor PaletteColour(int index) {
  static constexpr std::array<QRgb, 16> colours = {
      0xff000000, 0xff000080, 0xff008000, 0xff008080, 0xff800000, 0xff800080, 0xff808000, 0xffc0c0c0,
      0xff808080, 0xff0000ff, 0xff00ff00, 0xff00ffff, 0xffff0000, 0xffff00ff, 0xffffff00, 0xffffffff};
  const bool inside = index >= 0 && index < static_cast<int>(colours.size());
  return QColor(inside ? colours[static_cast<std::size_t>(index)] : colours[0]);
}
