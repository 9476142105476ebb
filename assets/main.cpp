// make-assets OUTDIR: draws the pictures and builds the models of the install folder.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "assets/backdrops.h"
#include "assets/effects.h"
#include "assets/models.h"
#include "assets/readme.h"
#include "assets/textures.h"
#include "assets/tracks.h"
#include "platform/qt/images.h"

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& folder, const art::Pictures& pictures) {
  fs::create_directories(folder);
  for (const art::NamedPicture& picture : pictures) {
    qt::SaveImageFile(picture.image, (folder / picture.file).string());
  }
}

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + file.string());
}

void WriteAll(const fs::path& out) {
  Write(out / "textures", art::KindTextures());
  Write(out / "textures", art::BuildingTextures());
  Write(out / "textures", art::GroundTextures());
  Write(out / "textures", art::MadeTextures());
  Write(out / "textures", art::PlateTextures());
  Write(out / "backgrounds", art::Backdrops());
  Write(out / "models/player.x", art::CarModel());
  Write(out / "models/orb.x", art::StarModel());
  Write(out / "skins", art::CarSkins());
  Write(out / "skins", art::StarSkins());
  Write(out / "misc", art::Explosion());
  Write(out / "misc", art::CutOuts());
  Write(out / "misc", art::Icon());
  for (const art::TrackFile& track : art::Tracks()) Write(out / "levels" / track.file, track.bytes);
  Write(out / "readme.txt", art::ReadmeText());
}

}  // namespace

int main(int count, char** words) {
  if (count != 2) {
    std::cerr << "usage: make-assets OUTDIR\n";
    return 2;
  }
  try {
    WriteAll(words[1]);
  } catch (const std::exception& error) {
    std::cerr << "make-assets: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
