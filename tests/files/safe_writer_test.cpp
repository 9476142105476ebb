#include "files/safe_writer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tests/support/null_editor.h"

namespace {

/// Fails the call with this number, counted from 1, or writes beyond so many bytes.
class FaultyCalls : public FileCalls {
 public:
  int failingCall = 0;
  size_t diskSpace = SIZE_MAX;
  int calls = 0;
  std::string failed;

  int OpenFolder(const char* path) override {
    return Fails("open") ? -1 : FileCalls::OpenFolder(path);
  }
  int OpenTemporary(char* name) override {
    return Fails("create") ? -1 : FileCalls::OpenTemporary(name);
  }
  int SetOwnerAndMode(int file, uid_t owner, gid_t group, mode_t mode) override {
    return Fails("mode") ? -1 : FileCalls::SetOwnerAndMode(file, owner, group, mode);
  }
  ssize_t Write(int file, const char* bytes, size_t count) override {
    if (Fails("write")) return -1;
    if (diskSpace == 0) {
      errno = ENOSPC;
      return -1;
    }
    const ssize_t written = FileCalls::Write(file, bytes, std::min(count, diskSpace));
    if (diskSpace != SIZE_MAX) diskSpace -= static_cast<size_t>(written);
    return written;
  }
  int Sync(int file) override { return Fails("sync") ? -1 : FileCalls::Sync(file); }
  int Close(int file) override {
    const bool fails = Fails("close");
    const int result = FileCalls::Close(file);
    if (fails) errno = EIO;
    return fails ? -1 : result;
  }
  int Rename(const char* from, const char* to) override {
    return Fails("rename") ? -1 : FileCalls::Rename(from, to);
  }

 private:
  bool Fails(const char* name) {
    if (++calls != failingCall) return false;
    failed = name;
    errno = EIO;
    return true;
  }
};

class SafeWriterTest : public ::testing::Test {
 protected:
  size_t FilesInFolder() const {
    size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      count += entry.exists() ? 1 : 0;
    }
    return count;
  }
  TemporaryFolder folder;
  std::string target = folder / "t.lvl";
};

TEST_F(SafeWriterTest, AnyFailingCallLeavesOldOrNewWhole) {
  const std::string old = "the old content", fresh = "new", merged = "new old content";
  for (int call = 1;; ++call) {
    WriteBytes(target, old);
    FaultyCalls calls;
    calls.failingCall = call;
    const std::string reason = WriteFileSafely(target, fresh, calls);
    if (calls.failed.empty()) {
      EXPECT_EQ(reason, "");
      EXPECT_GT(call, 8) << "every step was made to fail";
      break;
    }
    const std::string content = ReadBytes(target);
    EXPECT_TRUE(content == old || content == merged) << calls.failed;
    // Only what comes after the rename may leave the new content.
    if (content == merged) {
      EXPECT_TRUE(calls.failed == "sync" || calls.failed == "close");
    }
    // The folder's handle is closed when all is done; nothing can be lost by then.
    if (!(calls.failed == "close" && content == merged)) {
      EXPECT_NE(reason, "") << calls.failed;
    }
    EXPECT_EQ(FilesInFolder(), 1U) << "nothing left over after " << calls.failed;
  }
}

TEST_F(SafeWriterTest, FullDiskAtEveryByte) {
  const std::string old = "old";
  const std::string fresh = "fresh content";
  for (size_t space = 0; space <= fresh.size(); ++space) {
    WriteBytes(target, old);
    FaultyCalls calls;
    calls.diskSpace = space;
    const std::string reason = WriteFileSafely(target, fresh, calls);
    EXPECT_EQ(reason.empty(), space == fresh.size());
    EXPECT_EQ(ReadBytes(target), space == fresh.size() ? fresh : old);
    EXPECT_EQ(FilesInFolder(), 1U);
  }
}

TEST_F(SafeWriterTest, KeepsPermissionsAndFollowsLinks) {
  WriteBytes(folder / "real.lvl", "old content");
  chmod((folder / "real.lvl").c_str(), 0640);
  std::filesystem::create_symlink("real.lvl", folder / "second");
  std::filesystem::create_symlink(folder / "second", target);
  EXPECT_EQ(WriteFileSafely(target, "new"), "");
  EXPECT_TRUE(std::filesystem::is_symlink(target));
  EXPECT_EQ(ReadBytes(folder / "real.lvl"), "new content");
  struct stat status {};
  ASSERT_EQ(stat((folder / "real.lvl").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);

  std::filesystem::remove(target);
  std::filesystem::create_symlink("made.lvl", target);
  EXPECT_EQ(WriteFileSafely(target, "through a link to nothing"), "");
  EXPECT_EQ(ReadBytes(folder / "made.lvl"), "through a link to nothing");

  std::filesystem::create_symlink("loop", folder / "loop");
  EXPECT_NE(WriteFileSafely(folder / "loop", "x"), "");
}

TEST_F(SafeWriterTest, RefusesWhatIsNoFile) {
  EXPECT_EQ(WriteFileSafely(folder.Path(), "x"), "it is a folder");
  EXPECT_EQ(WriteFileSafely("/dev/full", "x"), "it is not a regular file");
  EXPECT_NE(WriteFileSafely(folder / "none/t.lvl", "x"), "");
  WriteBytes(target, "old");
  std::string bytes;
  EXPECT_NE(ReadWholeFile(target + "/x", bytes), "");
}

}  // namespace
