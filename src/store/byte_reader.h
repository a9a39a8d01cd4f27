#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

#include "text/fixed_text.h"

namespace veld {

static_assert(std::endian::native == std::endian::little && sizeof(int) == 4 && sizeof(float) == 4,
              "files hold little-endian numbers of four bytes, and are read and written as they lie in memory");

/// True for fields that lie in a file just as they lie in memory and may hold any bytes: whole numbers, texts, and
/// arrays of them.
template <typename Field>
inline constexpr bool kIsFileImage = std::is_same_v<Field, int>;
template <std::size_t N>
inline constexpr bool kIsFileImage<char[N]> = true;
template <std::size_t N>
inline constexpr bool kIsFileImage<FixedText<N>> = sizeof(FixedText<N>) == N;
template <typename Row, std::size_t N>
inline constexpr bool kIsFileImage<std::array<Row, N>> = kIsFileImage<Row>;

/// Takes fields from bytes that were read whole into memory. Never reads outside them: past the end there are zeros.
class ByteReader {
 public:
  static constexpr bool kReads = true;

  explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }

  /// Fills the fields in turn. A text takes its whole width, whatever follows its terminator included, and ends at that
  /// width if it has none; a floating number that is not finite becomes 0.
  template <typename... Fields>
  void Pass(Fields&&... fields) {
    (Take(fields), ...);
  }

  int Int() {
    int value = 0;
    Take(value);
    return value;
  }

 private:
  void TakeBytes(void* to, std::size_t size) {
    const std::size_t held = std::min(size, rest_.size());
    std::memcpy(to, rest_.data(), held);
    std::memset(static_cast<char*>(to) + held, 0, size - held);
    rest_.remove_prefix(held);
  }

  template <typename Field>
    requires kIsFileImage<Field>
  void Take(Field& field) {
    TakeBytes(&field, sizeof(field));
  }
  void Take(float& field) {
    TakeBytes(&field, sizeof(field));
    if (!std::isfinite(field)) field = 0;
  }
  template <typename Row, std::size_t Extent>
  void Take(std::span<Row, Extent>& rows) {
    for (Row& row : rows) Take(row);
  }

  std::string_view rest_;
};

}  // namespace veld
