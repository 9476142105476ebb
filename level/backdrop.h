// The six backdrops, and showing one by name.
#pragma once

#include <array>
#include <string>

/// Files of the six menu items, in order.
inline constexpr std::array<const char*, 6> kBackdropFiles = {
    "_default.jpg", "bk001.jpg", "bk002.jpg", "bk003.jpg", "bk004.jpg", "bk005.jpg"};

/// The same six as tracks may also store them.
inline constexpr std::array<const char*, 6> kBackdropTrackNames = {
    "_default.jpg", "_bk001.jpg", "_bk002.jpg", "_bk003.jpg", "_bk004.jpg", "_bk005.jpg"};

/// Shows the picture `name` of BackgroundDir behind the track; a name that has no file but begins
/// with a low line is tried without it. Returns false, and the previous picture stays, when
/// nothing could be loaded.
bool ShowBackdrop(const std::string& name);
