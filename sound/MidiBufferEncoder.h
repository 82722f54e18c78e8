#pragma once
#include <cstdint>
#include <vector>

#include "platform/MidiStream.h"

namespace velmora {

// Translates the image's events from `pos` into stream events in the
// header's buffer, as many as fit; the last one written carries the
// callback flag, so each buffer reports when it has been played. Meta
// events other than the tempo and the end write nothing and hand their
// delta on. Gives the number of image bytes consumed.
uint32_t EncodeMidiBuffer(const std::vector<uint8_t>& image, uint32_t imageEnd, uint32_t pos,
                          cMidiHeader& header);

}  // namespace velmora
