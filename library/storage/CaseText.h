// Texts of a case file that hold what its lines can't.
#pragma once

#include <string>
#include <string_view>

namespace orve {

/// A text as a value of a case file. One that holds a carriage return, a line feed or "[", that begins with
/// "%%" or ends in a blank is written as "%%" and the text with these characters and "%" as "%0D", "%0A",
/// "%5B", "%20" and "%25"; any other text stands as it is.
std::string EncodeCaseText(std::string_view text);
/// The text that a value stands for.
std::string DecodeCaseText(std::string_view value);

}  // namespace orve
