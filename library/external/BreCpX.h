// The contract of the pressure-coefficient component.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

/// A component that knows the zones and the external pressure coefficients of BS 6399-2 for one building
/// shape. It has no calculate call: a value read reflects the inputs set before the read. Lengths are in
/// metres, angles in degrees; a coefficient above 0 is pressure, below 0 suction.
class BreCpX {
 public:
  virtual ~BreCpX() = default;

  /// The class's type name: "BreCpX" for the older class, which is tried second.
  virtual std::string TypeName() const = 0;

  /// Data folder of the component (given to class "BreCpX" only).
  virtual void datapath(const std::string& value) = 0;
  virtual void AutoBreadth(bool value) = 0;
  virtual void Reporting(std::int32_t value) = 0;
  /// 1 for the directional method, 0 for the hybrid one.
  virtual void Method(std::int32_t value) = 0;

  /// Shape: 0 walls, 2 flat roof, 3 mono-pitched, 4 duo-pitched, 5 hipped, 8 parapet, 11 curved.
  virtual std::int32_t TypeIndex() const = 0;
  virtual void TypeIndex(std::int32_t value) = 0;

  // Shape parameters; 0 where they don't apply.
  virtual void Barrel_r(float value) = 0;      ///< Rise of a curved roof.
  virtual void Eaves_Pitch(float value) = 0;   ///< Slope of mansard eaves.
  virtual void Eaves_Radius(float value) = 0;  ///< Radius of curved eaves.
  virtual void Parapet_H(float value) = 0;     ///< Height of a flat roof's parapet.
  virtual void Roof_Pitch(float value) = 0;

  virtual float Dim_L() const = 0;  ///< Plan length along the face at wind angle 0.
  virtual void Dim_L(float value) = 0;
  virtual float Dim_W() const = 0;  ///< The other plan length.
  virtual void Dim_W(float value) = 0;
  virtual float Dim_H() const = 0;  ///< Height.
  virtual void Dim_H(float value) = 0;
  virtual float Dim_gap() const = 0;  ///< Gap beside the wall (2.4.1.4).
  virtual void Dim_gap(float value) = 0;
  /// 1 for parapets, else 0.
  virtual void Solidity(std::int32_t value) = 0;

  /// Wind angle to the building: 0, 90, 180 or 270, or 89.9 or 270.1 for a mono-pitched roof. Reads back
  /// exactly.
  virtual double Theta() const = 0;
  virtual void Theta(double value) = 0;
  /// Zone number of the component, scanned from 0 to 25.
  virtual void ZoneIndex(std::int16_t value) = 0;
  /// False asks `Cpe` for the pressure case, True for the suction case.
  virtual void Suction(bool value) = 0;

  /// True if `ZoneIndex` names a zone of the shape at `Theta`.
  virtual bool Valid() const = 0;
  /// The zone's letters.
  virtual std::string ZoneString() const = 0;
  virtual float Breadth() const = 0;  ///< Crosswind breadth B at `Theta`.
  virtual float Depth() const = 0;    ///< Inwind depth D at `Theta`.
  virtual float Scale_b() const = 0;  ///< Scaling length b at `Theta`.
  /// External pressure coefficient of the zone.
  virtual float Cpe() const = 0;
};

}  // namespace orve
