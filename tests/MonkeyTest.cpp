// A monkey at the form: seeded, so that what it breaks can be broken again. The environment can ask
// for another seed (TEPHREX_MONKEY_SEED) and a longer run (TEPHREX_MONKEY_ACTS).
#include <random>

#include "RandomUser.h"

namespace {

using MonkeyTest = FormTest;

TEST_F(MonkeyTest, NothingBreaksWhateverTheUserDoes) {
    const unsigned long seed = FromEnvironment("TEPHREX_MONKEY_SEED", 1);
    std::mt19937_64 generator(seed);
    RandomUser user(form, platform, folder,
                    [&generator](std::size_t below) { return generator() % below; });
    std::string acts;
    for (unsigned long i = FromEnvironment("TEPHREX_MONKEY_ACTS", 20000); i > 0; --i) {
        acts = acts.substr(acts.size() - std::min<std::size_t>(acts.size(), 2000));
        ASSERT_NO_THROW(acts += user.Act() + '\n') << "seed " << seed << ", behind\n" << acts;
        ASSERT_EQ(user.Broken(), "") << "seed " << seed << ", behind\n" << acts;
    }
}

}  // namespace
