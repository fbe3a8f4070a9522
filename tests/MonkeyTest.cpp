// A monkey at the form: seeded, so that what it breaks can be broken again. The environment can ask
// for another seed (TEPHREX_MONKEY_SEED) and a longer run (TEPHREX_MONKEY_ACTS).

#include <cstdlib>
#include <random>

#include "Acts.h"

namespace {

unsigned long FromEnvironment(const char* name, unsigned long fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : std::strtoul(text, nullptr, 10);
}

}  // namespace

using MonkeyTest = FormTest;

TEST_F(MonkeyTest, NothingBreaksWhateverTheUserDoes) {
    const unsigned long seed = FromEnvironment("TEPHREX_MONKEY_SEED", 1);
    const unsigned long acts = FromEnvironment("TEPHREX_MONKEY_ACTS", 20000);
    std::mt19937_64 generator(seed);
    User user(form, platform, folder,
              [&generator](std::size_t below) { return generator() % below; });
    std::vector<std::string> done;
    const auto story = [&done, seed] {
        std::string text = "seed " + std::to_string(seed) + ", the last acts:";
        for (std::size_t i = done.size() - std::min<std::size_t>(done.size(), 40); i < done.size();
             ++i) {
            text += "\n  " + std::to_string(i) + ": " + done[i];
        }
        return text;
    };
    for (unsigned long i = 0; i < acts; ++i) {
        ASSERT_NO_THROW(done.push_back(user.Act())) << story();
        ASSERT_EQ(user.Broken(), "") << story();
    }
}
