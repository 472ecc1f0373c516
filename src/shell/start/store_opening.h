#pragma once

#include <exception>

#include "application/environment.h"
#include "shell/windows/boxes.h"

namespace velmar::shell {

class LoaderWindow;

/// The environment with the message catalogue of the data folder. What stands in its way is asked and told in
/// boxes, in the words of the shipped catalogue.
/// @throws Failure as application::OpenCatalogue() does
application::Environment OpenEnvironmentOnScreen(const QString& version);

/// Brings material and results database into order, with boxes and with `loader` saying what takes long.
application::OpenedStores OpenStoresOnScreen(const application::Environment& environment, const Boxes& boxes,
                                             LoaderWindow& loader);

/// Tells why the program cannot start. Without a catalogue the failure's own words, in Italian and English,
/// are all there is.
void TellWithoutCatalogue(const std::exception& failure);

}  // namespace velmar::shell
