#pragma once
// The lines that DXF drawings are made of: a bare subset of the format without header and tables.

#include <string>

#include "panels/pattern_file.h"

inline constexpr std::string_view DxfFileHead = "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n";
inline constexpr std::string_view DxfFileTail = "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
inline constexpr std::string_view DxfPolyline =
    "  0\r\nPOLYLINE\r\n  8\r\n0\r\n 66\r\n     1\r\n 10\r\n0.0\r\n 20\r\n0.0\r\n";
inline constexpr std::string_view DxfPolylineEnd = "  0\r\nSEQEND\r\n";
inline constexpr std::string_view DxfVertex = "  0\r\nVERTEX\r\n  8\r\n0\r\n";
