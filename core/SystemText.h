#pragma once

namespace velmora {

// The system's own texts are written in UTF-8 in the sources and are CP932
// at run time. SysText gives the CP932 form of a literal; the conversion is
// made once per text and kept for the life of the process, so the pointer
// can be handed to printf-style functions and stored.
const char* SysText(const char* utf8);

}  // namespace velmora
