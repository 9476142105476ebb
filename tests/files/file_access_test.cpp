// Who may do what with a file that was saved: who could before, and nobody else.
#include "files/file_access.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "files/file_calls.h"
#include "files/safe_writer.h"
#include "tests/files/level_files.h"
#include "tests/support/null_editor.h"

namespace {

/// As for a writer who may not give files away, or whose file system keeps no lists.
struct RefusingCalls : FileCalls {
  RefusingCalls() { UseFileCalls(this); }
  ~RefusingCalls() override { UseFileCalls(nullptr); }
  bool groupIsOurs = false, listsWork = true;
  int SetOwner(int, uid_t owner, gid_t) override {
    return groupIsOurs && owner == static_cast<uid_t>(-1) ? 0 : -1;
  }
  int SetList(int, const std::string&) override { return listsWork ? 0 : -1; }
};

TEST(FileAccess, NobodyGainsARightWhateverCannotBeKept) {
  const TemporaryFolder folder;
  const OpenedFile file(open((folder / "t").c_str(), O_RDWR | O_CREAT, 0600));
  RefusingCalls calls;
  for (unsigned item = 0; item < 8 << 12; ++item) {
    const mode_t mode = item >> 3;
    calls.groupIsOurs = (item & 1) != 0;
    calls.listsWork = (item & 2) != 0;
    const std::string list = (item & 4) != 0 ? "list" : "";
    ASSERT_TRUE(KeepAccess(file.File(), {geteuid() + 1, getegid() + 1, mode, list}));
    struct stat status {};
    fstat(file.File(), &status);
    const mode_t now = status.st_mode & 07777U;
    const bool listKept = calls.listsWork && (list.empty() || calls.groupIsOurs);
    EXPECT_EQ(now & 07700U, mode & 0700U);
    EXPECT_TRUE(listKept || (now & 077U) == 0);
    if (calls.groupIsOurs && listKept) {
      EXPECT_EQ(now, mode & 0777U);
    } else {
      // Members of the old group are others now, members of the new one were others.
      EXPECT_EQ((now | now >> 3) & 7U & ~(mode & mode >> 3), 0U) << std::oct << mode;
    }
  }
}

/// An access list as the kernel stores it: everything for the owner, nothing for one user.
std::string ListAgainst(int user) {
  using level_files::Long, level_files::Integer;
  std::string list = Long(2);
  for (const int tag : {1, 2, 4, 16, 32}) {
    list += Integer(tag) + (tag == 2 ? Integer(0) + Long(user) : Integer(6) + Long(-1));
  }
  return list;
}

TEST(SavedFile, KeepsItsListAndItsGroupAndTakesNoListFromTheFolder) {
  const TemporaryFolder folder;
  const std::string target = folder / "t.lvl", list = ListAgainst(1003);
  const auto access = [&target] {
    struct stat status {};
    stat(target.c_str(), &status);
    return AccessOf(target, status);
  };
  WriteBytes(target, "old");
  chmod(target.c_str(), 0660);
  const char* const inherited = "system.posix_acl_default";
  if (setxattr(folder.Path().c_str(), inherited, list.data(), list.size(), 0) != 0) {
    GTEST_SKIP() << "no access lists here";
  }
  EXPECT_EQ(WriteFileSafely(target, "new").failure, "");
  EXPECT_EQ(std::pair(access().list.value(), access().mode), std::pair(std::string(), 0660U));
  setxattr(target.c_str(), kAccessListName, list.data(), list.size(), 0);
  EXPECT_EQ(WriteFileSafely(target, "newer").failure, "");
  EXPECT_EQ(access().list, list);

  if (geteuid() != 0) GTEST_SKIP() << "needs root to become somebody else";
  chmod(folder.Path().c_str(), 0777);
  for (const gid_t group : {2001U, 2002U}) {
    ASSERT_EQ(chown(target.c_str(), 1001, 2001), 0);
    ASSERT_EQ(WriteFileSafely(target, "by root").failure, "");
    EXPECT_EQ(access().owner, 1001U);
    const pid_t saver = fork();
    if (saver == 0) {
      const bool changed = setgroups(1, &group) == 0 && setgid(3001) == 0 && setuid(1002) == 0;
      _exit(changed && WriteFileSafely(target, "by another").failure.empty() ? 0 : 1);
    }
    int status = 0;
    waitpid(saver, &status, 0);
    EXPECT_EQ(status, 0);
    const bool member = group == 2001;
    EXPECT_EQ(std::tuple(access().group, access().mode, access().list.value()),
              member ? std::tuple(2001U, 0666U, list) : std::tuple(3001U, 0600U, ""));
  }
}

}  // namespace
