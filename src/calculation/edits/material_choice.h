#pragma once

#include <string>

#include "elements/layer_groups.h"
#include "elements/material_record.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// Whether the table of `family` has a material called `name`, letter case aside.
bool IsMaterial(const elements::MaterialLookup& materials, elements::MaterialFamily family,
                const std::string& name);

/// A material is chosen in row `index` of `group`: the row's slot takes the record's values, its box the
/// default thickness, so a thickness typed earlier is lost. A number that the table leaves empty keeps the
/// slot's value.
///
/// Two habits of stored set-ups are kept: the conductance C of a choice in the first leaf goes to the second
/// leaf's slot of the same number, and the SEA groups leave the tabulated surface mass alone.
///
/// @return false when no table row has that name; the slot then stays as it was
/// @throws std::out_of_range beyond the group's rows
bool ChooseMaterial(elements::Setup& setup, elements::LayerGroup group, int index, const std::string& name,
                    const elements::MaterialLookup& materials);

/// Every slot in use of `group` is read again by the name its list shows, as after a change of the count; the
/// thickness comes from the row's box. Here the second leaf writes C into the first leaf's slots.
void ReloadLayers(elements::Setup& setup, elements::LayerGroup group,
                  const elements::MaterialLookup& materials);

/// Every row in use whose slot is not of the material that its list shows reads that material, as after a
/// click on the list, but keeps the thickness of its box: such rows come into use when a count is raised, a
/// cavity gets more contents or a damping layer is ticked. A row whose material no table holds is emptied, so
/// that nothing is shown that is not calculated.
void LoadRowsInUse(elements::Setup& setup, const elements::MaterialLookup& materials);

/// The first selection of every layer row, from the first row of each material table: all lists and boxes
/// show it; of the leaves and SEA leaves only the first slot is filled, of the cavities and resilient layers
/// every slot. An absent record leaves its rows alone.
///
/// A habit that stored set-ups rely on is kept: the Poisson's ratio of the first layer of "Parete 1 normale
/// SEA" goes to "Parete 1"; its own slot has none until a material is chosen.
void SelectFirstMaterials(elements::Setup& setup, const elements::StructuralRecord* structural,
                          const elements::FibrousRecord* fibrous, const elements::ResilientRecord* resilient);

}  // namespace velmar::calculation
