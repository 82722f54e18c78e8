# Sound needs FluidSynth (the synthesiser and the audio output) and the
# vorbis libraries (ogg music, and the sample ogg the project generator writes).
find_package(PkgConfig REQUIRED)
pkg_check_modules(VELMORA_SOUND REQUIRED IMPORTED_TARGET fluidsynth vorbisfile vorbisenc vorbis ogg)
target_link_libraries(velmora_logic PUBLIC PkgConfig::VELMORA_SOUND)
