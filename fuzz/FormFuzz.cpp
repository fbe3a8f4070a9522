// Bytes as user actions on the form; after each the invariants of RandomUser hold.

#include <cstdint>

#include "RandomUser.h"
#include "Require.h"

namespace {

class FuzzedForm : public FormTest {
public:
    void Run(const std::uint8_t* byte, const std::uint8_t* end) {
        SetUp();
        RandomUser user(form, platform, folder, [&byte, end](std::size_t below) {
            std::size_t choice = 0;
            for (std::size_t reach = 1; reach < below && byte != end; reach *= 256) {
                choice = choice * 256 + *byte++;
            }
            return choice % below;
        });
        while (byte != end) {
            const std::string action = user.Act();
            const std::string broken = user.Broken();
            Require(broken.empty(), broken + ", after: " + action);
        }
    }

private:
    void TestBody() override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedForm().Run(data, data + size);
    return 0;
}
