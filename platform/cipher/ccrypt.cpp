#include "cipher/ccrypt.h"

#include <algorithm>
#include <charconv>
#include <random>
#include <string_view>

#include "OrlinCustomDialogs/failure.h"

namespace orlin {
namespace {

constexpr std::string_view kForm = "1:";
constexpr std::size_t kDigitsOfNumber = 8;
// Sets the stream apart from that of any other program which grows one from a seed.
constexpr std::uint32_t kKey = 0x6D1B54A7;

/// A stream of bytes (xorshift).
class Stream {
 public:
  explicit Stream(std::uint32_t seed) : state_(seed ^ kKey) {
    if (state_ == 0) state_ = kKey;
  }
  char Combine(char byte) {
    state_ ^= state_ << 13U;
    state_ ^= state_ >> 17U;
    state_ ^= state_ << 5U;
    return static_cast<char>(static_cast<unsigned char>(byte) ^ static_cast<unsigned char>(state_ >> 24U));
  }

 private:
  std::uint32_t state_;
};

std::string Combined(std::string text, std::uint32_t seed) {
  Stream stream(seed);
  for (char& byte : text) byte = stream.Combine(byte);
  return text;
}

std::uint32_t CheckOf(std::uint32_t seed, std::string_view plain) {
  constexpr std::uint32_t prime = 16777619;
  std::uint32_t sum = 2166136261U ^ seed;
  for (const char byte : plain) sum = (sum ^ static_cast<unsigned char>(byte)) * prime;
  return sum;
}

void AppendHex(std::string& text, std::uint32_t number, unsigned digits) {
  for (unsigned left = digits; left > 0; --left) text += "0123456789abcdef"[(number >> (4 * (left - 1))) & 0xFU];
}

std::uint32_t TakeHex(std::string_view& text, std::size_t digits) {
  std::uint32_t number = 0;
  const auto* const end = text.data() + std::min(digits, text.size());
  const auto [stop, error] = std::from_chars(text.data(), end, number, 16);
  if (text.size() < digits || stop != end || error != std::errc()) {
    throw Failure(failures::InvalidCall, "This is no enciphered text");
  }
  text.remove_prefix(digits);
  return number;
}

}  // namespace

std::string CCrypt::EncryptString(const std::string& plain) {
  const std::uint32_t seed = std::random_device{}();
  std::string text(kForm);
  AppendHex(text, seed, kDigitsOfNumber);
  AppendHex(text, CheckOf(seed, plain), kDigitsOfNumber);
  for (const char byte : Combined(plain, seed)) AppendHex(text, static_cast<unsigned char>(byte), 2);
  return text;
}

std::string CCrypt::DecryptString(const std::string& enciphered) {
  std::string_view rest = enciphered;
  const bool known = rest.starts_with(kForm);
  rest.remove_prefix(known ? kForm.size() : rest.size());
  const auto seed = TakeHex(rest, kDigitsOfNumber);
  const auto check = TakeHex(rest, kDigitsOfNumber);
  std::string plain;
  while (!rest.empty()) plain += static_cast<char>(static_cast<unsigned char>(TakeHex(rest, 2)));
  plain = Combined(std::move(plain), seed);
  if (CheckOf(seed, plain) != check) throw Failure(failures::InvalidCall, "This is no enciphered text");
  return plain;
}

}  // namespace orlin
