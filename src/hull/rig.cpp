#include "hull/rig.h"

#include <initializer_list>

double RigMastLength;
double RigBoomHeight;
double RigStepZ;
double RigLuffLength;
double RigFootLength;
double RigHeadLength;
double RigHeadAngle;
double RigStepY;

void ResetRig() {
  for (double* number : {&RigMastLength, &RigBoomHeight, &RigStepZ, &RigLuffLength, &RigFootLength,
                         &RigHeadLength, &RigHeadAngle, &RigStepY}) {
    *number = 0;
  }
}
