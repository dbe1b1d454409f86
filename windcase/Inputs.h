// The inputs of a case by their own names, through the description of the object model.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Dispatch.h"

namespace orve {
class clsCurrentCase;
}

namespace windcase {

/// The name of an input: "Roof_Pitch", "SteppedWind_Span(0, 1)" or, where two objects have it,
/// "DynamicPressure.ManualResults". Indices stand for numbers or texts of enumerations.
struct InputKey {
  std::string object;  ///< Property of the root object, as "DynamicPressure"; empty if it isn't named.
  std::string name;
  std::vector<std::string> indices;

  /// The key as it is typed; the object in front if `withObject`.
  std::string Text(bool withObject) const;
};

/// Failure: Usage for a text that isn't a key.
InputKey ParseKey(std::string_view text);

/// A key and the text behind its first "=". Failure: Usage if there is none.
struct Assignment {
  InputKey key;
  std::string value;
};
Assignment ParseAssignment(std::string_view text);

/// One input: the object, the member and the index arguments.
struct Input {
  orve::automation::ObjectReference object;
  const orve::automation::MemberDescription* member = nullptr;
  std::vector<orve::automation::Value> indices;
  InputKey key;
};

/// Inputs of the open case.
class Inputs {
 public:
  explicit Inputs(orve::clsCurrentCase& windCase);

  /// The inputs that a key names; more than one if an index is "*". Failure: Usage for an unknown name, one
  /// that several objects have and the key doesn't say which, and indices that don't fit.
  std::vector<Input> Find(const InputKey& key) const;

  /// The key behind a line of a case file; nothing for one that isn't an input here, as one of a newer
  /// program. `section` is empty for the root object's.
  std::optional<InputKey> StoredKey(const std::string& section, std::string_view text) const;

  /// The value as text, enumerations by their published text, and what kind of text it is. Errors: those of
  /// the read.
  std::string Read(const Input& input) const;

  /// Gives an input the value that a text stands for. Failure: Usage if the text doesn't stand for one, if
  /// the input isn't stored in a case, or if it keeps another value. `newCase` allows the design of the host
  /// ("Parent_Span"), which fills a new case.
  void Assign(const Input& input, const std::string& value, bool newCase) const;

 private:
  struct Owner {
    std::string name;  // empty for the root object
    orve::automation::ObjectReference object;
  };
  std::vector<Owner> Owners() const;
  std::string Nearest(std::string_view name) const;
  orve::automation::ObjectReference m_root;
};

}  // namespace windcase
