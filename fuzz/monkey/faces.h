#pragma once
// What the run puts into the slots of a face: surfaces that see to the contract of drawing, answers to
// all boxes from the run's stream, a modal window that goes on with acts of its own, a printer, a viewer.

#include <array>
#include <functional>

#include "monkey/checked_surface.h"
#include "monkey/stream.h"

extern std::array<CheckedSurface, 3> Thumbnails;
extern CheckedSurface MainPicture;
extern CheckedSurface SheetPicture;

/// Fills the slots of a program that was reset. `act` does one act of the user in the modal window.
void ShowFaces(Stream& stream, std::function<void()> act);

/// The user closed the main window, or chose Exit, and didn't cancel; or the power failed.
extern bool ProgramEnded;

/// The windows get another size, which paints them anew.
void ResizeWindows(Stream& stream);

/// Notes a fault for a surface whose pen or mode was not set back.
void CheckSurfaces();
