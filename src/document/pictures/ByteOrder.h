// Numbers in the data of images; the caller has checked that the data are long enough.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace lumenote {

inline std::uint32_t ByteAt(std::string_view data, std::size_t at) {
  return static_cast<unsigned char>(data[at]);
}
inline std::uint32_t BigEndian16(std::string_view data, std::size_t at) {
  return ByteAt(data, at) << 8 | ByteAt(data, at + 1);
}
inline std::uint32_t BigEndian32(std::string_view data, std::size_t at) {
  return BigEndian16(data, at) << 16 | BigEndian16(data, at + 2);
}
inline std::uint32_t LittleEndian16(std::string_view data, std::size_t at) {
  return ByteAt(data, at) | ByteAt(data, at + 1) << 8;
}
inline std::uint32_t LittleEndian32(std::string_view data, std::size_t at) {
  return LittleEndian16(data, at) | LittleEndian16(data, at + 2) << 16;
}
inline void AppendLittleEndian(std::uint32_t value, int bytes, std::string& out) {
  for (; bytes > 0; --bytes, value >>= 8) out += static_cast<char>(value & 0xFF);
}

}  // namespace lumenote
