// Work in processes of its own: all of it comes back, whatever becomes of a process.
#include "tools/vorbilax_track/workers.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <stdexcept>

namespace {

using track_tool::Handed;

TEST(Workers, HandBackEverythingAndDieAlone) {
  constexpr size_t kCount = 40, kLong = 300'000;
  const auto work = [](size_t index) -> std::string {
    if (index % 10 == 3) raise(SIGKILL);
    if (index % 10 == 4) throw std::runtime_error("expected by the test");
    if (index % 10 == 5) _exit(7);
    // More than a pipe takes at once.
    return std::string(index % 2 == 0 ? kLong : 0, static_cast<char>('A' + index));
  };
  for (const size_t jobs : {1U, 3U, 100U}) {
    std::map<size_t, Handed> all;
    track_tool::RunWorkers(kCount, jobs, work, [&](size_t index, const Handed& handed) {
      EXPECT_TRUE(all.emplace(index, handed).second);
    });
    ASSERT_EQ(all.size(), kCount);
    for (const auto& [index, handed] : all) {
      const std::map<size_t, std::string> deaths = {
          {3, "Killed"}, {4, "exit status 1"}, {5, "exit status 7"}};
      const auto death = deaths.find(index % 10);
      EXPECT_EQ(handed.death, death == deaths.end() ? "" : death->second);
      const bool whole = !handed.death.empty() || handed.bytes == work(index);
      EXPECT_TRUE(whole) << index;
    }
  }
}

}  // namespace
