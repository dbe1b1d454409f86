// Average loads of the bays of a continuous member under a stepped load.
#pragma once

namespace orve {

/// Bays laid along one line, and the steps of a load along the same line: W1 over Z1, then W2 over Z2, then
/// W3 for all that follows. Loads in kN/m², lengths in one unit.
struct BayLoadCase {
  float L1 = 0;  ///< First bay.
  float L2 = 0;  ///< Second bay.
  float W1 = 0;
  float W2 = 0;
  float W3 = 0;
  float Z1 = 0;
  float Z2 = 0;
};

/// The uniform load equal to the average over the first bay (the end bay). Errors: 11 for a bay length of 0
/// where it divides, 6 if a sum or the result doesn't fit.
float EndBayLoad(const BayLoadCase& bays);
/// The same over the second bay (the internal bay).
float SecondBayLoad(const BayLoadCase& bays);

}  // namespace orve
