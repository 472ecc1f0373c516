#pragma once

#include <QIcon>
#include <QSize>

#include "presentation/drawing/compared_looks.h"

namespace velmar::structures {

/// A piece of a curve, as the legend of the chart shows it. @param on_paper on the white of the chart, where
/// the theme of the window would swallow its colour
QIcon SampleOf(const presentation::ComparedLook& look, const QSize& size, bool on_paper = false);

}  // namespace velmar::structures
