#pragma once

#include "elements/materials.h"

namespace velmar::materials {

/// "Fonte" of a shipped material whose values a user changed.
inline constexpr const char* kUserValueSource = "valore utente";

/// Surface mass in kg/m²: density times thickness.
double SurfaceMassOf(const elements::StructuralMaterial& material);

/// Critical frequency in Hz of one sheet as a thin plate in air (Cremer), with two decimals as tables hold
/// it; 0 where the values give none.
double CriticalFrequencyOf(const elements::StructuralMaterial& material);

/// Brings the surface mass and the critical frequency of `changed` in line with its other values: each that
/// followed from the values of `before`, and was not changed itself, follows from the new ones.
void FollowChange(const elements::StructuralMaterial& before, elements::StructuralMaterial& changed);

}  // namespace velmar::materials
