// compile_catalogue TO FROM...: turns catalogue files, one for each language, into the source of `Languages`.

#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>
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

std::string Table(const std::string& name, const TextTable& texts) {
  std::string table = "constexpr std::array<CompiledText, " + std::to_string(texts.size()) + "> " + name + " = {{\n";
  for (const auto& [number, text] : texts) table += "    {" + std::to_string(number) + ", " + Literal(text) + "},\n";
  return table + "}};\n\n";
}

class Source {
 public:
  void Add(const std::filesystem::path& file) {
    const auto name = "kTexts" + std::to_string(count_++);
    tables_ += Table(name, ReadCatalogueFile(file));
    languages_ += "    {" + Literal(file.stem().string()) + ", " + name + "},\n";
  }

  [[nodiscard]] std::string Text() const {
    return "#include \"catalogue/languages.h\"\n\n#include <array>\n\nnamespace orlin {\nnamespace {\n\n"
           "using std::literals::operator\"\"sv;\n\n" +
           tables_ + "constexpr std::array<Language, " + std::to_string(count_) + "> kLanguages = {{\n" + languages_ +
           "}};\n\n}  // namespace\n\n"
           "std::span<const Language> Languages() noexcept { return kLanguages; }\n\n}  // namespace orlin\n";
  }

 private:
  int count_ = 0;
  std::string tables_;
  std::string languages_;
};

}  // namespace
}  // namespace orlin

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: compile_catalogue TO FROM...\n";
    return 2;
  }
  try {
    orlin::Source source;
    for (int i = 2; i < argc; ++i) source.Add(argv[i]);
    std::ofstream file(argv[1], std::ios::binary);
    if (file << source.Text() << std::flush) return 0;
    std::cerr << argv[1] << " cannot be written\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  return 1;
}
