#include "base/print_zones.h"

#include "base/text_lines.h"

void PutZones(std::string& out, std::initializer_list<std::string_view> items) {
  constexpr std::size_t zone = 14;
  const std::size_t start = out.size();
  for (const std::string_view item : items) {
    const std::size_t column = out.size() - start;
    out.append((zone - column % zone) % zone, ' ');
    out += item;
  }
  out += LineEnd;
}
