// Random calls on the library and on a naive device beside it (beside.hpp), which must answer
// alike. Each seed is a run on tables of its own. One that fails is made again with ever fewer of
// its steps, each time in a process of its own, as some faults end it.
#include <fmt/format.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <numeric>

#include "beside.hpp"
#include "tesselctl/device/device.hpp"

namespace pd_test {
namespace {

using Steps = std::vector<uint32_t>;
using Clock = std::chrono::steady_clock;

constexpr uint32_t kStepsOfARun = 1000;
constexpr uint64_t kRuns = 25;

uint64_t environment(const char *name, uint64_t otherwise) {
  const char *text = std::getenv(name);
  return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

class Play {
 public:
  explicit Play(uint64_t seed) : seed_(seed) {}

  // How many of the steps were made until something differed; 0 if nothing did.
  uint32_t fails(const Steps &steps, bool shows = false) const {
    *made_ = 0;
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      if (!shows) static_cast<void>(std::freopen("/dev/null", "w", stdout));
      if (!shows) static_cast<void>(std::freopen("/dev/null", "w", stderr));
      alarm(20);  // a fault may be that a call does not return
      make(steps, shows);
      std::fflush(nullptr);
      _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    if (shows && WIFSIGNALED(status)) fmt::print("ended by signal {}\n", WTERMSIG(status));
    return status == 0 ? 0 : std::max(1u, *made_);
  }

  // The fewest steps, as far as leaving out some after the other finds them.
  Steps shrunk(Steps steps) const {
    const auto end = Clock::now() + std::chrono::seconds(60);
    size_t piece = std::max<size_t>(1, steps.size() / 2);
    while (Clock::now() < end) {
      const size_t before = steps.size();
      for (size_t at = 0; at < steps.size() && Clock::now() < end;) {
        Steps fewer = steps;
        const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
        fewer.erase(from, from + static_cast<std::ptrdiff_t>(std::min(piece, steps.size() - at)));
        const uint32_t made = fails(fewer);
        if (made != 0) fewer.resize(std::min<size_t>(fewer.size(), made));
        if (made != 0) steps = fewer;
        if (made == 0) at += piece;
      }
      if (piece == 1 && steps.size() == before) break;
      piece = std::max<size_t>(1, piece / 2);
    }
    return steps;
  }

 private:
  void make(const Steps &steps, bool shows) const {
    Beside beside(seed_, shows);
    for (size_t i = 0; i < steps.size() && !testing::Test::HasFailure(); ++i) {
      *made_ = static_cast<uint32_t>(i + 1);
      if (shows) fmt::print("// step {}\n", steps[i]);
      beside.step(steps[i]);
      if (steps[i] % 100 == 0) beside.compare();
    }
    if (!testing::Test::HasFailure()) beside.compare();
  }

  uint64_t seed_;
  // Written by the process that plays.
  uint32_t *made_ = static_cast<uint32_t *>(
      mmap(nullptr, sizeof(uint32_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
};

// PD_SOAK_SEED in the environment gives the first seed, PD_SOAK_SECONDS how long runs are made.
TEST(RandomCalls, AreAnsweredAsByANaiveDevice) {
  const uint64_t first = environment("PD_SOAK_SEED", 1),
                 seconds = environment("PD_SOAK_SECONDS", 0);
  const auto end = Clock::now() + std::chrono::seconds(seconds);
  ASSERT_EQ(clean_up(), BF_SUCCESS);  // the tool starts the library
  const std::unique_ptr<const tesselctl::LibraryUse, void (*)(const tesselctl::LibraryUse *)> use(
      new tesselctl::LibraryUse, [](auto *of) {
        delete of;
        EXPECT_EQ(initialise(), BF_SUCCESS);
      });
  Steps all(kStepsOfARun);
  std::iota(all.begin(), all.end(), 0);
  uint64_t seed = first;
  for (; seed < first + kRuns || Clock::now() < end; ++seed) {
    const Play play(seed);
    const uint32_t made = play.fails(all);
    if (made == 0) continue;
    const Steps steps = play.shrunk({all.begin(), all.begin() + made});
    fmt::print("seed {}: step {} differs; {} steps are enough:\n", seed, made, steps.size());
    play.fails(steps, true);
    FAIL() << "PD_SOAK_SEED=" << seed << " repeats it";
  }
  fmt::print("{} operations, seeds {} to {}\n", (seed - first) * kStepsOfARun, first, seed - 1);
}

}  // namespace
}  // namespace pd_test
