#include "files/safe_writer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "files/file_calls.h"
#include "files/stray_files.h"
#include "platform/retry.h"
#include "platform/whole_file.h"
#include "tests/support/null_editor.h"

namespace {

/// Fails the call with this number, counted from 1.
class FaultyCalls : public FileCalls {
 public:
  FaultyCalls() { UseFileCalls(this); }
  ~FaultyCalls() override { UseFileCalls(nullptr); }
  int failingCall = 0, error = EIO;
  int calls = 0;
  std::string failed;

  int OpenFolder(const char* path) override {
    return Fails("open") ? -1 : FileCalls::OpenFolder(path);
  }
  int Create(const char* path, mode_t mode) override {
    return Fails("create") ? -1 : FileCalls::Create(path, mode);
  }
  int SetMode(int file, mode_t mode) override {
    return Fails("mode") ? -1 : FileCalls::SetMode(file, mode);
  }
  int SetList(int file, const std::string& list) override {
    return Fails("list") ? -1 : FileCalls::SetList(file, list);
  }
  ssize_t Write(int file, const char* bytes, size_t count) override {
    return Fails("write") ? -1 : FileCalls::Write(file, bytes, count);
  }
  int Sync(int file) override { return Fails("sync") ? -1 : FileCalls::Sync(file); }
  int Close(int file) override {
    FileCalls::Close(file);
    return Fails("close") ? -1 : 0;
  }
  int Rename(const char* from, const char* to) override {
    return Fails("rename") ? -1 : FileCalls::Rename(from, to);
  }

 private:
  bool Fails(const char* name) {
    if (++calls != failingCall) return false;
    failed = name;
    errno = error;
    return true;
  }
};

class SafeWriterTest : public ::testing::Test {
 protected:
  int64_t FilesInFolder() const {
    const std::filesystem::directory_iterator files(folder.Path());
    return std::distance(begin(files), end(files));
  }
  mode_t Mode() const {
    struct stat status {};
    stat(target.c_str(), &status);
    return status.st_mode & 0777U;
  }
  TemporaryFolder folder;
  std::string target = folder / "t.lvl";
};

TEST_F(SafeWriterTest, AnyFailingCallLeavesOldOrNewWhole) {
  const std::string old = "the old content", merged = "new old content";
  for (int call = 1;; ++call) {
    WriteBytes(target, old);
    chmod(target.c_str(), 0664);
    FaultyCalls calls;
    calls.failingCall = call;
    const Written written = WriteFileSafely(target, "new");
    EXPECT_EQ(ReadBytes(target), written.failure.empty() ? merged : old) << calls.failed;
    // Only the folder's sync comes after the rename.
    EXPECT_EQ(written.warning.empty(), !(calls.failed == "sync" && written.failure.empty()));
    EXPECT_EQ(Mode(), calls.failed == "list" ? 0600U : 0664U) << calls.failed;
    EXPECT_EQ(FilesInFolder(), 1) << "nothing left over after " << calls.failed;
    if (!calls.failed.empty()) continue;
    EXPECT_GT(call, 8) << "every step was made to fail";
    break;
  }
  for (const int ofTheFolder : {1, 2}) {
    FaultyCalls calls;
    calls.failingCall = ofTheFolder;
    calls.error = EACCES;
    EXPECT_TRUE(WriteFileSafely(target, "x").failure.starts_with("the folder " + folder.Path()));
  }
}

TEST_F(SafeWriterTest, NoRoomAfterAnyByte) {
  const std::string fresh = "fresh content";
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  for (size_t room = 0; room <= fresh.size(); ++room) {
    WriteBytes(target, "old");
    const rlimit limit{room, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const Written written = WriteFileSafely(target, fresh);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(written.failure, room == fresh.size() ? "" : "File too large");
    EXPECT_EQ(ReadBytes(target), room == fresh.size() ? fresh : "old");
    EXPECT_EQ(FilesInFolder(), 1);
  }
}

TEST_F(SafeWriterTest, KeepsPermissionsTailsAndLinks) {
  const std::string tail(200'000, 't');
  WriteBytes(folder / "real.lvl", "old" + tail);
  chmod((folder / "real.lvl").c_str(), 0640);
  std::filesystem::create_symlink("real.lvl", folder / "second");
  std::filesystem::create_symlink(folder / "second", target);
  EXPECT_EQ(WriteFileSafely(target, "new").failure, "");
  EXPECT_TRUE(std::filesystem::is_symlink(target));
  EXPECT_TRUE(ReadBytes(folder / "real.lvl") == "new" + tail);
  EXPECT_EQ(Mode(), 0640U);

  std::filesystem::remove(folder / "real.lvl");
  const mode_t mask = umask(027);
  EXPECT_EQ(WriteFileSafely(target, "through a link to nothing").failure, "");
  umask(mask);
  EXPECT_EQ(ReadBytes(folder / "real.lvl"), "through a link to nothing");
  EXPECT_EQ(Mode(), 0640U);

  std::filesystem::create_symlink("loop", folder / "loop");
  EXPECT_NE(WriteFileSafely(folder / "loop", "x").failure, "");
}

TEST_F(SafeWriterTest, RefusesWhatIsNoFileOrNotOurs) {
  EXPECT_EQ(WriteFileSafely(folder.Path(), "x").failure, "it is a folder");
  EXPECT_EQ(WriteFileSafely("/dev/full", "x").failure, "it is not a regular file");
  EXPECT_NE(WriteFileSafely(folder / "none/t.lvl", "x").failure, "");
  WriteBytes(target, "old");
  std::string bytes;
  EXPECT_NE(ReadWholeFile(target + "/x", bytes), "");
  std::filesystem::resize_file(target, kGreatestFile + 1);
  EXPECT_EQ(ReadWholeFile(target, bytes), "it is too large");
  EXPECT_EQ(WriteFileSafely(target, "x").failure, "it is too large");
  int interruptions = 3;
  EXPECT_EQ(RetryInterrupted([&] {
              errno = EINTR;
              return interruptions-- > 0 ? -1 : 7;
            }),
            7);
}

TEST_F(SafeWriterTest, AKilledSavesFileIsRemovedALivingOnesIsNot) {
  struct Waiting : FaultyCalls {
    int Sync(int) override { return pause(); }
  };
  WriteBytes(target, "old");
  const pid_t saving = fork();
  if (saving == 0) {
    Waiting calls;
    WriteFileSafely(folder / "other.lvl", "half a track");
    _exit(1);
  }
  while (FilesInFolder() < 2) usleep(1000);
  // As if a later process had got the number of a dead one; and two of an older program.
  std::string reused = TemporaryName();
  const size_t start = reused.find('-', reused.find('-') + 1) + 1;
  WriteBytes(folder / reused.replace(start, reused.find('-', start) - start, "1"), "");
  WriteBytes(folder / ".vorbilax-aZ09bY", "");
  WriteBytes(folder / ".vorbilax-aZ09bX", "");
  using namespace std::chrono_literals;
  std::filesystem::last_write_time(folder / ".vorbilax-aZ09bX",
                                   std::filesystem::file_time_type::clock::now() - 25h);
  EXPECT_EQ(WriteFileSafely(target, "new").failure, "");
  EXPECT_EQ(FilesInFolder(), 3) << "the track, the living one, the young one";
  kill(saving, SIGKILL);
  waitpid(saving, nullptr, 0);
  EXPECT_EQ(WriteFileSafely(target, "new").failure, "");
  EXPECT_EQ(FilesInFolder(), 2);
}

}  // namespace
