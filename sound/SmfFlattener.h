#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

// A song is played from an image: a Standard MIDI File of format 0 in
// memory, every event with its own status byte and FF 2F 00 last.
constexpr uint32_t kSmfImageEvents = 22;  // offset of the first event

// Tests the header of a Standard MIDI File and flattens its tracks (format
// 0 or 1) into an image in time order, ties going by track order. Reading
// stops at the end of the data whatever the lengths inside say. A refused
// file is reported with `name` and gives an empty image.
std::vector<uint8_t> FlattenSmf(const uint8_t* data, size_t size, const std::string& name);

// The offset behind the image's last event.
uint32_t SmfImageEnd(const std::vector<uint8_t>& image);

}  // namespace velmora
