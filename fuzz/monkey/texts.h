#pragma once
// What a user types: mostly what a box is meant for, now and then something else.

#include <string>

#include "monkey/stream.h"

/// A number of a hull's size, in one of the forms in which people write it.
std::string InchesText(Stream& stream);
/// Anything: numbers of any size, entries with dashes, words, long texts, other alphabets.
std::string OddText(Stream& stream);
/// Inches, or anything when the user is in the mood.
std::string NumberText(Stream& stream);
/// A name of a file, with folders and dots in it at times. It never starts at the root and never climbs
/// higher than two folders, so that it stays among the run's own.
std::string FileNameText(Stream& stream);

/// A text on one line as a report shows it: quoted, control characters as codes, cut if it is long.
std::string Quoted(const std::string& text);
