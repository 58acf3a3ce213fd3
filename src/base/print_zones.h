#pragma once
// Lines of a table whose items stand in print zones of 14 columns.

#include <initializer_list>
#include <string>
#include <string_view>

/// Appends one line, ended by CR LF. Each item starts at the next multiple of 14 columns behind the
/// item before it. An item of exactly 14 (28, 42) characters lets the next start right behind it,
/// and nothing stands behind the last item.
void PutZones(std::string& out, std::initializer_list<std::string_view> items);
