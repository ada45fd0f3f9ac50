// Every step of a walk while one call fails, or while the device is full from some call on.
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <optional>
#include <thread>

#include "pocketpc/common/failing_calls.h"
#include "tests/trials/walk.h"
#include "tests/ui/device.h"

namespace {

using namespace ui;

// Of so many calls this many fail, unless the environment says that every so many shall.
int Stride(int calls, int sample) {
    const char* const every = std::getenv("EVERY");
    return std::max(1, every ? atoi(every) : calls / sample);
}

struct Tally {
    int made[failing::kKindCount] = {}, failed[failing::kKindCount] = {};

    void Print(const char* what) const {
        printf("%-15s", what);
        for (int i = 0; i < failing::kKindCount; ++i) {
            printf(" %ls %d/%d", failing::kKindNames[i], failed[i], made[i]);
        }
        printf("\n");
        fflush(stdout);
    }
};

class FailingCalls : public DeviceTest, public testing::WithParamInterface<Step> {
  protected:
    void SetUp() override {
        DeviceTest::SetUp();
        SetEnvironmentVariableW(L"POCKETPC_FAIL", L"none");
    }

    void Start() {
        program_.emplace();
        ASSERT_TRUE(program_->Main());
        calls_ = failing::CallsOf(program_->id());
        ASSERT_TRUE(calls_);
    }
    void End() {
        EXPECT_EQ(program_->CloseAndWait(), 0u);
        program_.reset();
        UnmapViewOfFile(calls_);
    }
    void Allow() {
        for (LONG& first : calls_->first) first = std::numeric_limits<LONG>::max();
    }
    void Refuse(int kind, int call) {
        calls_->last[kind] =
            kind == failing::kSpace ? std::numeric_limits<LONG>::max() : calls_->made[kind] + call;
        calls_->first[kind] = calls_->made[kind] + call;
    }

    // What hangs is ended, so that the step returns.
    Outcome Run(const Step& step) const {
        const HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::thread watch([&] {
            if (WaitForSingleObject(done, 30'000) == WAIT_TIMEOUT) program_->Kill();
        });
        const Outcome outcome = step.run(*program_, [] {});
        SetEvent(done);
        watch.join();
        CloseHandle(done);
        return outcome;
    }

    std::optional<Program> program_;
    failing::Calls* calls_ = nullptr;
};

TEST_P(FailingCalls, CostNothingThatWasNotBeingStored) {
    const Step& step = GetParam();
    {
        Start();
        Prepared(step);
        Run(step);  // Creates what first reads create.
        const Holdings before = Prepared(step);
        failing::Calls start = *calls_;
        const DWORD begun = GetTickCount();
        ASSERT_TRUE(Run(step).closed) << step.name;
        const DWORD took = GetTickCount() - begun;
        const Holdings then = Holdings::Read();
        Tally tally;
        for (int kind = 0; kind < failing::kKindCount; ++kind)
            tally.made[kind] = calls_->made[kind] - start.made[kind];
        for (int kind = 0; kind < failing::kKindCount; ++kind) {
            const int stride = Stride(tally.made[kind], 3);
            for (int call = 1 + step.name[0] % stride; call <= tally.made[kind]; call += stride) {
                before.Restore();
                Refuse(kind, call);
                const Outcome outcome = Run(step);
                Allow();
                ++tally.failed[kind];
                const auto where = testing::Message() << step.name << ", " << kind << ":" << call;
                const Holdings now = Holdings::Read();
                for (const std::string& damage : Damage(before, then, now))
                    ADD_FAILURE() << where << ": " << damage;
                if (step.maySay) {
                    EXPECT_TRUE(outcome.message || now == then) << where << " is not told";
                } else {
                    EXPECT_FALSE(outcome.message) << where;
                }
                if (outcome.closed && program_->IsRunning() && program_->OpenSheets().empty())
                    continue;
                ADD_FAILURE() << where
                              << (program_->IsRunning() ? " does not close" : " crashes or hangs");
                for (const std::wstring& open : program_->OpenSheets())
                    printf("open: %ls\n", open.c_str());
                program_.reset();
                Start();
            }
        }
        printf("[%lu ms a step] ", took);
        tally.Print(step.name);
        before.Restore();
        End();
    }
}

INSTANTIATE_TEST_SUITE_P(Step, FailingCalls, testing::ValuesIn(Steps()), NameOfStep);

class StartingCalls : public FailingCalls {};
TEST_F(StartingCalls, DoNotKeepTheProgramFromStarting) {
    Start();
    program_->Close();
    program_->WaitForExit();
    const failing::Calls all = *calls_;
    const Holdings before = Holdings::Read();
    Tally tally;
    for (int kind = 0; kind < failing::kKindCount; ++kind) {
        tally.made[kind] = all.made[kind];
        const int stride = Stride(tally.made[kind], 4);
        for (int call = 1; call <= all.made[kind]; call += stride, ++tally.failed[kind]) {
            const std::wstring wanted = std::wstring(failing::kKindNames[kind]) + L":" +
                                        std::to_wstring(call) +
                                        (kind == failing::kSpace ? L"-" : L"");
            before.Restore();
            SetEnvironmentVariableW(L"POCKETPC_FAIL", wanted.c_str());
            const Program program;
            EXPECT_TRUE(program.Main()) << testing::PrintToString(wanted);
            EXPECT_EQ(program.CloseAndWait(), 0u) << testing::PrintToString(wanted);
            for (const std::string& damage : Damage(before, before, Holdings::Read()))
                ADD_FAILURE() << testing::PrintToString(wanted) << ": " << damage;
        }
    }
    tally.Print("start");
}

}  // namespace
