// compile_catalogue FROM TO: turns a catalogue file into the source of `EnglishTexts`.

#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "catalogue/catalogue_file.h"

namespace orlin {
namespace {

// Everything but plain characters in octal, which unlike hexadecimal ends after three digits.
std::string Literal(std::string_view text) {
  std::string literal = "\"";
  for (const char c : text) {
    if (c >= ' ' && c <= '~' && c != '"' && c != '\\') {
      literal += c;
    } else {
      std::array<char, 5> octal{};
      std::snprintf(octal.data(), octal.size(), "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(c)));
      literal += octal.data();
    }
  }
  return literal + "\"sv";
}

std::string Source(const TextTable& texts) {
  std::string source =
      "#include \"catalogue/english.h\"\n\n#include <array>\n\nnamespace orlin {\nnamespace {\n\n"
      "using std::literals::operator\"\"sv;\n\n"
      "constexpr std::array<EnglishText, " +
      std::to_string(texts.size()) + "> kTexts = {{\n";
  for (const auto& [number, text] : texts) source += "    {" + std::to_string(number) + ", " + Literal(text) + "},\n";
  return source +
         "}};\n\n}  // namespace\n\n"
         "std::span<const EnglishText> EnglishTexts() noexcept { return kTexts; }\n\n}  // namespace orlin\n";
}

}  // namespace
}  // namespace orlin

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: compile_catalogue FROM TO\n";
    return 2;
  }
  try {
    const auto source = orlin::Source(orlin::ReadCatalogueFile(argv[1]));
    std::ofstream file(argv[2], std::ios::binary);
    if (file << source << std::flush) return 0;
    std::cerr << argv[2] << " cannot be written\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  return 1;
}
