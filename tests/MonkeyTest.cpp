// Random user actions on the form. The environment variables TEPHREX_MONKEY_SEED and
// TEPHREX_MONKEY_ACTIONS set the seed and the number of actions; the same seed repeats a failure.
#include <random>

#include "RandomUser.h"

namespace {

using MonkeyTest = FormTest;

TEST_F(MonkeyTest, FormStaysConsistentUnderRandomActions) {
    const unsigned long seed = FromEnvironment("TEPHREX_MONKEY_SEED", 1);
    std::mt19937_64 generator(seed);
    RandomUser user(form, platform, folder,
                    [&generator](std::size_t below) { return generator() % below; });
    std::string actions;
    for (unsigned long i = FromEnvironment("TEPHREX_MONKEY_ACTIONS", 20000); i > 0; --i) {
        actions = actions.substr(actions.size() - std::min<std::size_t>(actions.size(), 2000));
        ASSERT_NO_THROW(actions += user.Act() + '\n') << "seed " << seed << ", after\n" << actions;
        ASSERT_EQ(user.Broken(), "") << "seed " << seed << ", after\n" << actions;
    }
}

}  // namespace
