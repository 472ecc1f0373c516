#pragma once

#include "elements/material_record.h"
#include "elements/setup.h"
#include "storage/project/family_part.h"
#include "storage/project/line_cursor.h"
#include "storage/project/line_writer.h"

namespace velmar::storage {

/// What the reader of a block needs besides the place it reads to.
struct PartInput {
  LineCursor& lines;
  const elements::MaterialLookup& materials;
  int version_code = 0;
  PartLayout layout{};
};

// What stands behind the common part, family by family. The order of the lines stands at each source's top.
// Counts are written as the lists can hold them, whatever the set-up says.

void WriteSinglePart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadSinglePart(PartInput& in, elements::Setup& setup);

void WriteSeaSinglePart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadSeaSinglePart(PartInput& in, elements::Setup& setup);

void WriteSeaDoublePart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadSeaDoublePart(PartInput& in, elements::Setup& setup);

void WriteDoubleWallPart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadDoubleWallPart(PartInput& in, elements::Setup& setup);

void WriteFloorPart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadFloorPart(PartInput& in, elements::Setup& setup);

void WriteLiningPart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadLiningPart(PartInput& in, elements::Setup& setup);

void WriteFacadePart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadFacadePart(PartInput& in, elements::Setup& setup);

void WriteMultilayerPart(LineWriter& out, const elements::Setup& setup, const PartLayout& layout);
void ReadMultilayerPart(PartInput& in, elements::Setup& setup);

}  // namespace velmar::storage
