#pragma once

#include <string>
#include <utility>

#include "store/byte_reader.h"

namespace veld {

/// Puts fields one behind the other, as a ByteReader takes them.
class ByteWriter {
 public:
  static constexpr bool kReads = false;

  explicit ByteWriter(std::size_t expectedSize = 0) { bytes_.reserve(expectedSize); }

  template <typename... Fields>
  void Pass(const Fields&... fields) {
    (Put(fields), ...);
  }

  std::string TakeBytes() { return std::move(bytes_); }

 private:
  template <typename Field>
    requires(kIsFileImage<Field> || std::is_same_v<Field, float>)
  void Put(const Field& field) {
    bytes_.append(reinterpret_cast<const char*>(&field), sizeof(field));
  }
  template <typename Row, std::size_t Extent>
  void Put(const std::span<Row, Extent>& rows) {
    for (const Row& row : rows) Put(row);
  }

  std::string bytes_;
};

}  // namespace veld
