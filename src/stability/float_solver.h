// Where the hull floats: the level of the water for a volume in a given
// attitude, and the free trim at a heel, where the pitch turns until the
// centre of buoyancy lies on the vertical through the centre of gravity in
// the plane of the trim.
#pragma once

#include <optional>

#include "stability/immersion.h"

namespace tolmar::stability {

struct Afloat {
  double level = 0;  // of the water plane along the frame's up
  ImmersedBody body;
};

// The level at which the mesh displaces `volume` m3 in the frame, within a
// millionth of a millimetre of level.  Nothing when the volume is not
// above 0 and below the mesh's: it would not float, or sink.  guess: a
// level to start from (NaN: none).
std::optional<Afloat> floatVolume(const HydroMesh& m, const Frame& f, double volume, double guess);

// How the free trim search ends.
enum class Trim {
  found,
  none,  // no pitch within +-kMaxPitch brings B under G: the hull cannot float there
};

inline constexpr double kMaxPitch = 1.0471975511965976;  // 60 degrees

struct Balance {
  Trim trim = Trim::none;
  double heel = 0, pitch = 0;  // radians
  double level = 0;
  Frame frame;
  ImmersedBody body;
  double gz = 0;  // (B - G) along the frame's across, m: righting when positive
};

// At heel (radians) with `volume` m3 and the centre of gravity g: pitch and
// level solved together.  pitchGuess and levelGuess (NaN for none) start
// the search, usually from the angle before.
Balance balanceAt(const HydroMesh& m, double heel, double volume, const Vec3& g, double pitchGuess,
                  double levelGuess);

}  // namespace tolmar::stability
