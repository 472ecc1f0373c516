#pragma once

#include "elements/layer_groups.h"
#include "elements/setup.h"

namespace velmar::calculation {

// What a hand does to whole layers of a table: put in, take out, double, move, mirror, turn. Rows keep
// all they hold, and the rows behind the last one in use are a reserve: a layer that is taken out goes there,
// one that is put in comes from there, so that taking out what was put in leaves everything as it was. A
// cavity follows its contents, as everywhere.

/// Whether the number of layers of `group` is free: the leaves, the cavity of a double wall, the resilient
/// layers. Damping layers go with the layer they lie on; what a cavity of a SEA wall holds follows from its
/// type.
bool HasFreeCount(elements::LayerGroup group);

/// Whether one more layer has a place in `group`.
bool CanInsertLayer(const elements::Setup& setup, elements::LayerGroup group);
/// Whether `group` can do with a layer less: all but the resilient layers keep one.
bool CanRemoveLayer(const elements::Setup& setup, elements::LayerGroup group);
/// Whether the layers of `group` can change places: there are two of them, and they are no damping
/// layers; the rows of a free list move by MoveStratum().
bool CanMoveLayers(const elements::Setup& setup, elements::LayerGroup group);
/// The number of rows of `group` in use becomes `count`, which CanInsertLayer() and CanRemoveLayer() allow.
/// @throws std::out_of_range for a group whose count is not free
void SetLayerCount(elements::Setup& setup, elements::LayerGroup group, int count);

/// A layer from the reserve stands in row `at` (0 to the number in use), and those from there on move down.
/// @throws std::out_of_range where CanInsertLayer() says no, or for another row
void InsertLayer(elements::Setup& setup, elements::LayerGroup group, int at);
/// Row `index` stands twice, one below the other, with its damping layers.
/// @throws std::out_of_range where CanInsertLayer() says no, or for a row that is not in use
void DuplicateLayer(elements::Setup& setup, elements::LayerGroup group, int index);
/// Row `index` goes to the reserve, and those below it move up.
/// @throws std::out_of_range where CanRemoveLayer() says no, or for a row that is not in use
void RemoveLayer(elements::Setup& setup, elements::LayerGroup group, int index);
/// Row `from` stands in place `to`; those between make room. A mass in a cavity takes its damping along.
/// @throws std::out_of_range where CanMoveLayers() says no, or for rows that are not in use
void MoveLayer(elements::Setup& setup, elements::LayerGroup group, int from, int to);

/// Whether the element has two leaves of one kind with a cavity between them, one of which can mirror the
/// other.
bool CanMirror(const elements::Setup& setup);
/// The second leaf becomes what the first one is in a mirror that stands in the cavity: the same layers in
/// the other order, damping on the other side. @throws std::logic_error where CanMirror() says no
void MirrorFirstLeaf(elements::Setup& setup);
/// The first leaf becomes the mirrored second one. @throws std::logic_error where CanMirror() says no
void MirrorSecondLeaf(elements::Setup& setup);

/// Whether the element can stand the other way round: a wall or glazing, not a floor, and nothing in its
/// cavity that exists in one order only.
bool CanTurn(const elements::Setup& setup);
/// The element stands the other way round: the leaves change places, and all layers their order.
/// @throws std::logic_error where CanTurn() says no
void TurnElement(elements::Setup& setup);

}  // namespace velmar::calculation
