#pragma once
// "nest.txt": where each point of each part lies on which sheet, for marking out by hand. Written for
// people; nothing reads it back.

#include <string>

/// The head with HullFileName, time and date, then all shown parts and copies twice, in inches with
/// eighths and in millimetres: a row a point, in the print zone of its sheet. A copy lacks its last
/// point, and what lies beyond sheet 5 has no row.
std::string NestTableText();

/// Asks for a name, writes the table and starts the viewer with that name, whether or not it could be
/// written.
void Form2_Command8_Click();
