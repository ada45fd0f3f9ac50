// The program is ended while it stores, again and again, and started anew.
#include <atomic>
#include <cstdlib>
#include <random>
#include <thread>

#include "app/registry_exporter.h"
#include "settings/settings_key.h"
#include "tests/trials/walk.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

using Clock = std::chrono::steady_clock;

class Kills : public DeviceTest, public testing::WithParamInterface<Step> {
  protected:
    // Runs a step and ends the program `delay` after it begins to store; returns whether that was
    // before the step was over.
    static bool Run(const Step& step, const Program& program, Clock::duration delay) {
        std::thread killer;
        std::atomic<bool> killed = false;
        step.run(program, [&] {
            killer = std::thread([&, until = Clock::now() + delay] {
                while (Clock::now() < until && program.IsRunning()) {
                    if (until - Clock::now() > std::chrono::milliseconds(2)) Sleep(1);
                }
                killed = true;
                program.Kill();
            });
        });
        const bool wasKilled = killed;
        if (killer.joinable()) killer.join();
        return wasKilled;
    }
};

TEST_P(Kills, LeaveEveryValueOldOrNew) {
    const Step& step = GetParam();
    const char* const wanted = std::getenv("KILLS");
    const int kills = wanted ? atoi(wanted) / static_cast<int>(Steps().size()) + 1 : 1;
    std::mt19937 random(kills + step.name[0]);
    int whileStoring = 0, partialExports = 0, changed = 0;
    Prepared(step);
    {
        const Program creating;
        ASSERT_TRUE(creating.Main());
        step.run(creating, [] {});  // Creates what first reads create.
    }
    const Program first;
    ASSERT_TRUE(first.Main());
    const Holdings before = Prepared(step);
    Clock::time_point begun = Clock::now();
    ASSERT_TRUE(step.run(first, [&] { begun = Clock::now(); }).closed);
    const Clock::duration span = Clock::now() - begun;
    first.CloseAndWait();
    const Holdings then = Holdings::Read();
    EXPECT_TRUE(then != before || step.name == std::string("about")) << "nothing to be kept";
    for (int k = 0; k < kills; ++k) {
        before.Restore();
        {
            const Program program;
            ASSERT_TRUE(program.Main());
            const auto delay = span * (random() % 1000) / 1000;
            whileStoring += Run(step, program, delay);
        }
        Holdings now = Holdings::Read();
        if (const auto file = now.files.find(kExportFile);
            std::string(step.name) == "export" && file != now.files.end() &&
            file->second != then.files.at(kExportFile)) {
            ++partialExports;
            EXPECT_FALSE(RegistryExporter().Import(kExportFile));
            DeleteFileW(kExportFile);
            now = Holdings::Read();
        }
        std::erase_if(now.files, [](const auto& file) { return file.first.ends_with(L".new"); });
        for (const std::string& damage : Damage(before, then, now)) ADD_FAILURE() << damage;
        changed += now != before;
        const Program next;
        EXPECT_TRUE(next.Main());
        EXPECT_EQ(next.CloseAndWait(), 0u);
    }
    before.Restore();
    printf("%d ended, %d before the step was over, %d had stored something, %d exports in part\n",
           kills, whileStoring, changed, partialExports);
}

INSTANTIATE_TEST_SUITE_P(Step, Kills, testing::ValuesIn(Steps()), NameOfStep);

}  // namespace
