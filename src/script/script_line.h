/// The lines of a script, cut into words.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace terravane {

/// A line that is no command, or that names no control; what() says so in a sentence. The run goes on with the
/// next line.
class LineFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

using Words = std::span<const std::string>;

/// The words of a line, none for an empty line and a comment ('#' first). Words are separated by blanks and
/// tabs; one with blanks stands in double quotes, in which \" \\ \n \t are escapes.
/// LineFault for a quote that is not closed, for text right behind one and for any other escape.
std::vector<std::string> SplitLine(std::string_view line);

/// A whole number; LineFault where the word is none. `what` names it: "a row".
int WholeNumber(const std::string& word, const std::string& what);

/// The same, nothing where the word is none.
std::optional<int> ReadWholeNumber(std::string_view word);

/// "on" or "off"; LineFault for another word.
bool OnOrOff(const std::string& word);

/// The words as they would be asked for again, a blank between them.
std::string Joined(Words words);

}  // namespace terravane
