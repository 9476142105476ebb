// Picture files of every kind are read whole, and refused by name when they were cut.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "platform/d3dx.h"
#include "platform/error.h"
#include "platform/mesh.h"
#include "platform/qt/images.h"

namespace {

class PictureFile : public testing::Test {
 protected:
  ~PictureFile() override { std::filesystem::remove(path_); }
  Image Read(const std::string& bytes) const {
    std::ofstream(path_, std::ios::binary) << bytes;
    return qt::LoadImageFile(path_);
  }
  void ExpectRefused(const std::string& bytes) const {
    try {
      Read(bytes);
      ADD_FAILURE() << bytes.size() << " bytes were read: " << bytes.substr(0, 60);
    } catch (const PlatformError& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with(path_ + ": ")) << error.what();
    }
  }
  std::string Encoded(const Image& image, const std::string& extension) const {
    qt::SaveImageFile(image, path_ + extension);
    std::ifstream file(path_ + extension, std::ios::binary);
    std::filesystem::remove(path_ + extension);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string path_ = testing::TempDir() + "picture_test_" + std::to_string(getpid());
};

std::string Little(size_t value, int bytes = 4) {
  return {reinterpret_cast<const char*>(&value), static_cast<size_t>(bytes)};
}

/// Five by three light pixels; the first colour of a table is black.
std::string Bmp(size_t header, size_t bits, size_t compression = 0, int height = 3,
                std::string rows = {}) {
  if (rows.empty()) rows.assign((5 * bits + 31) / 32 * 4 * 3, '\xFF');
  const int side = header == 12 ? 2 : 4, colour = header == 12 ? 3 : 4;
  std::string info = Little(header) + Little(5, side) +
                     Little(static_cast<uint32_t>(height), side) + Little(1, 2) + Little(bits, 2);
  if (header > 12) {
    info += Little(compression) + Little(rows.size()) + std::string(16, '\0');
    if (compression == 3 && bits == 16) info += Little(0xF800) + Little(0x7E0) + Little(0x1F);
    if (compression == 3 && bits == 32) info += Little(0xFF0000) + Little(0xFF00) + Little(0xFF);
    info.resize(std::max(info.size(), header), '\0');
  }
  if (bits <= 8) info.append(3, '\0').append((static_cast<size_t>(colour) << bits) - 3, '\xFF');
  return "BM" + Little(14 + info.size() + rows.size()) + Little(0) + Little(14 + info.size()) +
         info + rows;
}

TEST_F(PictureFile, EveryKindIsReadWholeAndEveryCutIsRefused) {
  using namespace std::string_literals;
  const Image white(5, 3, 0xFFFFFFFF);
  std::vector<std::string> files = {Encoded(white, ".png"),
                                    Encoded(white, ".jpg"),
                                    Encoded(white, ".bmp"),
                                    Bmp(40, 24, 0, -3),
                                    Bmp(40, 8, 0, -3),
                                    Bmp(40, 16, 3),
                                    Bmp(40, 32, 3),
                                    Bmp(108, 24),
                                    Bmp(124, 32, 3),
                                    Bmp(124, 16, 3),
                                    Bmp(40, 8, 1, 3, "\5\1\0\0\5\1\0\0\5\1\0\0\0\1"s),
                                    Bmp(40, 4, 2, 3, "\5\x11\0\0\5\x11\0\0\5\x11\0\0\0\1"s)};
  for (const size_t bits : {1U, 4U, 8U, 16U, 24U, 32U}) {
    files.push_back(Bmp(40, bits));
    if (bits % 16 != 0) files.push_back(Bmp(12, bits));
  }
  for (const std::string& bytes : files) {
    // Five bits of a channel may end at 0xF8.
    const auto light = [](uint32_t pixel) { return (pixel | 0x070707) == 0xFFFFFFFF; };
    EXPECT_EQ(std::ranges::count_if(Read(bytes + "what follows is ignored").pixels, light), 15);
  }
  Image noise(64, 64);  // its JPEG is longer than one read of the decoder
  for (size_t i = 0; i < noise.pixels.size(); ++i) {
    noise.pixels[i] = 0xFF000000 | static_cast<uint32_t>(i * i * 2654435761U);
  }
  files.push_back(Encoded(noise, ".jpg"));
  for (const std::string& bytes : files) {
    Read(bytes);
    const auto step = [&](size_t at) { return at > 99 && at + 99 < bytes.size() ? 29U : 1U; };
    for (size_t length = 0; length < bytes.size(); length += step(length)) {
      ExpectRefused(bytes.substr(0, length));
    }
  }
  // Pixels that the runs leave out.
  EXPECT_EQ(Read(Bmp(40, 8, 1, 3, "\0\1"s)).pixels, Image(5, 3).pixels);
}

TEST_F(PictureFile, WhatIsTooLongOrNoFileIsRefused) {
  EXPECT_EQ(Read(Encoded(Image(qt::kGreatestSide, 1), ".png")).width, qt::kGreatestSide);
  ExpectRefused(Encoded(Image(qt::kGreatestSide + 1, 1), ".png"));
  ExpectRefused(Encoded(Image(1, qt::kGreatestSide + 1), ".png"));
  std::filesystem::remove(path_);
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  EXPECT_THROW(qt::LoadImageFile(path_), PlatformError) << "whoever opens a pipe waits";
  EXPECT_THROW(d3dx::Library(qt::LoadImageFile, mesh::ReadXFile).LoadMeshFromX(path_),
               PlatformError);
}

}  // namespace
