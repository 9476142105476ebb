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

struct Person {
  bool inOldGroup, inNewGroup;
};

/// What the person, who owns nothing, may do with a file of this group.
mode_t RightsOf(const Person& person, bool oldGroup, mode_t mode) {
  return (oldGroup ? person.inOldGroup : person.inNewGroup) ? mode >> 3 & 7U : mode & 7U;
}

TEST(FileAccess, NobodyGainsARightWhateverCannotBeKept) {
  const TemporaryFolder folder;
  WriteBytes(folder / "t", "");
  const int file = open((folder / "t").c_str(), O_RDWR);
  RefusingCalls calls;
  for (mode_t mode = 0; mode <= 07777; ++mode) {
    for (const int kept : {0, 1, 2, 3}) {
      calls.groupIsOurs = (kept & 1) != 0;
      calls.listsWork = (kept & 2) != 0;
      for (const char* list : {"", "list"}) {
        ASSERT_TRUE(KeepAccess(file, {geteuid() + 1, getegid() + 1, mode, list}));
        struct stat status {};
        fstat(file, &status);
        const mode_t now = status.st_mode & 07777U;
        EXPECT_EQ(now & ~mode, 0U);
        EXPECT_EQ(now & 0700U, mode & 0700U);
        const bool listLost = !calls.listsWork || (*list != 0 && !calls.groupIsOurs);
        EXPECT_TRUE(!listLost || (now & 07077U) == 0);
        for (const Person person :
             {Person{false, false}, {true, false}, {false, true}, {true, true}}) {
          const mode_t before = RightsOf(person, true, mode);
          EXPECT_EQ(RightsOf(person, calls.groupIsOurs, now) & ~before, 0U) << mode << " " << kept;
        }
        EXPECT_TRUE(!calls.groupIsOurs || listLost || now == (mode & 0777U));
      }
    }
  }
  close(file);
}

/// An access list as the kernel stores it: everything for the owner, nothing for one user.
std::string ListAgainst(uint32_t user) {
  std::string list("\2\0\0\0", 4);
  const auto add = [&list](uint16_t tag, uint16_t rights, uint32_t id) {
    list.append(reinterpret_cast<const char*>(&tag), 2);
    list.append(reinterpret_cast<const char*>(&rights), 2);
    list.append(reinterpret_cast<const char*>(&id), 4);
  };
  add(1, 6, UINT32_MAX);
  add(2, 0, user);
  add(4, 6, UINT32_MAX);
  add(16, 6, UINT32_MAX);
  add(32, 6, UINT32_MAX);
  return list;
}

class SavedAccess : public testing::Test {
 protected:
  void SetUp() override {
    WriteBytes(target, "old");
    const std::string list = ListAgainst(1003);
    if (setxattr(target.c_str(), kAccessListName, list.data(), list.size(), 0) != 0) {
      GTEST_SKIP() << "no access lists here";
    }
  }
  struct stat Status() const {
    struct stat status {};
    stat(target.c_str(), &status);
    return status;
  }
  std::string List() const { return AccessOf(target, Status()).list.value_or("unreadable"); }
  TemporaryFolder folder;
  std::string target = folder / "t.lvl";
};

TEST_F(SavedAccess, ListStaysAndTheFoldersDefaultDoesNotComeIn) {
  EXPECT_EQ(WriteFileSafely(target, "new").failure, "");
  EXPECT_EQ(List(), ListAgainst(1003));
  removexattr(target.c_str(), kAccessListName);
  chmod(target.c_str(), 0660);
  const std::string list = ListAgainst(1004);
  ASSERT_EQ(
      setxattr(folder.Path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0), 0);
  EXPECT_EQ(WriteFileSafely(target, "newer").failure, "");
  EXPECT_EQ(List(), "");
  EXPECT_EQ(Status().st_mode & 0777U, 0660U);
}

TEST_F(SavedAccess, AnotherMemberOfTheGroupKeepsGroupAndList) {
  if (geteuid() != 0) GTEST_SKIP() << "needs root to become somebody else";
  chmod(folder.Path().c_str(), 0777);
  for (const gid_t savers : {2001U, 2002U}) {
    ASSERT_EQ(chown(target.c_str(), 1001, 2001), 0);
    const std::string list = ListAgainst(1003);
    setxattr(target.c_str(), kAccessListName, list.data(), list.size(), 0);
    ASSERT_EQ(WriteFileSafely(target, "by root").failure, "");
    EXPECT_EQ(Status().st_uid, 1001U);
    const pid_t saver = fork();
    if (saver == 0) {
      const bool changed = setgroups(1, &savers) == 0 && setgid(3001) == 0 && setuid(1002) == 0;
      _exit(changed && WriteFileSafely(target, "by a member").failure.empty() ? 0 : 1);
    }
    int status = 0;
    waitpid(saver, &status, 0);
    EXPECT_EQ(status, 0);
    const bool member = savers == 2001;
    EXPECT_EQ(Status().st_gid, member ? 2001U : 3001U);
    EXPECT_EQ(List(), member ? list : "");
    EXPECT_EQ(Status().st_mode & 0777U, member ? 0666U : 0600U);
  }
}

}  // namespace
