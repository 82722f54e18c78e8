#pragma once
#include <string>

namespace velmora {

// The pictures of the sample project, all drawn here: both palette files,
// every file of the fixed bitmap table and the tool bar strips, with the
// folders they go in. False as soon as a file can't be written.
bool WriteSamplePictures();

// A character's own bitmap for the database: `frames` cells of 32 x 32 in
// two columns, the character looking left and, beside it, right.
bool WriteSampleCharaBitmap(const std::string& stored, int number, int frames);

}  // namespace velmora
