#pragma once

#include <complex>
#include <vector>

#include "models/layered/finite_size.h"
#include "models/layered/lanes.h"
#include "models/layered/layered_element.h"

namespace velmar::models {

/// What the plane waves of one frequency need of one leaf or fill. Stages stand from the receiving side to
/// the source side, the way in which the impedance is carried.
struct WaveStage {
  enum class Kind { kPlate, kCoredPlate, kPartingPlate, kFluid };
  Kind kind = Kind::kPlate;

  // Plates: Zp = fixed - j kx^4/omega (bending / (1 + shear kx²) + composite g / (kx² + g)), losses included.
  std::complex<double> fixed{};      ///< j omega m and the stiffness of the bay
  std::complex<double> bending{};    ///< B (1 + j eta) / omega
  double shear_m2 = 0.0;             ///< B / K
  std::complex<double> composite{};  ///< (1 + j eta) / omega times what the sheets gain
  std::complex<double> core{};       ///< g kx², the core's shear parameter
  std::complex<double> parting{};    ///< Zd without the bending of the sheets
  std::complex<double> parting_bending{};

  // Fluids.
  std::complex<double> wavenumber_squared{};
  std::complex<double> omega_density{};
  double thickness_m = 0.0;
};

/// Part of an element made ready for plane waves.
class LayeredStack {
 public:
  /// All of `element`, which the model must have accepted.
  explicit LayeredStack(const LayeredElement& element);
  /// The leaves `first` and `first + 1` of `element` with the cavity between them.
  LayeredStack(const LayeredElement& element, std::size_t first);

  const std::vector<LeafProperties>& Leaves() const { return leaves_; }
  const PlateDimensions& Dimensions() const { return dimensions_; }
  bool IsOrthotropic() const;

  /// The stages at one frequency and azimuth, into `stages`.
  void FormStages(double frequency_hz, double azimuth_rad, std::vector<WaveStage>& stages) const;

  /// The cosines of the angles of incidence at which a leaf is coincident, each between 0 and 1.
  void FindCoincidences(double frequency_hz, double azimuth_rad, std::vector<double>& cosines) const;

 private:
  LayeredStack(const LayeredElement& element, std::size_t first, std::size_t count);

  PlateDimensions dimensions_;
  std::vector<LeafProperties> leaves_;
  std::vector<std::vector<CavityFill>> fills_;
  std::vector<CavityEdge> edges_;
  double bay_frequency_hz_ = 0.0;
};

/// What becomes of a plane wave that meets the unbounded stack.
struct PlaneWaveResponse {
  std::complex<double> reflection{};  ///< factor of the pressure
  double transmission = 0.0;          ///< of the power, without the window of the finite size
};

/// The response of `stack` at one frequency and cosine of the angle of incidence (above 0, at most 1).
PlaneWaveResponse RespondToPlaneWave(const LayeredStack& stack, double frequency_hz, double cosine,
                                     double azimuth_rad = 0.0);

/// The integrand of the diffuse field, tau_inf sigma cos(theta) times twice the cosine, so that the integral
/// over the cosine from 0 to 1 is the transmission coefficient: at kAngleLanes cosines at once. The hot loop
/// of the model.
void DiffuseFieldIntegrand(const std::vector<WaveStage>& stages, double frequency_hz,
                           const SpatialWindow& window, const Lanes& cosines, Lanes& values);

}  // namespace velmar::models
