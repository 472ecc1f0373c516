#include "acoustics/bands.h"

namespace velmar::acoustics {
namespace {

constexpr Spectrum kCentres = {50,  63,  80,   100,  125,  160,  200,  250,  315,  400, 500,
                               630, 800, 1000, 1250, 1600, 2000, 2500, 3150, 4000, 5000};

constexpr Spectrum kUpperEdges = {56.2, 70.8, 89.1, 112,  141,  178,  224,  282,  355,  447, 562,
                                  708,  891,  1122, 1413, 1778, 2239, 2818, 3548, 4467, 4999};

}  // namespace

double BandCentre(std::size_t band) { return kCentres.at(band); }

double BandUpperEdge(std::size_t band) { return kUpperEdges.at(band); }

}  // namespace velmar::acoustics
