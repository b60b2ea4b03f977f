#pragma once
// Time of the emulated host. The console runs it on the real clock; tests and tools
// use the manual clock, so tasks and statistics move exactly as far as a test says.

#include <cstdint>

class SK_EmuClock
{
public:
    virtual ~SK_EmuClock();
    // Milliseconds since an arbitrary start, never going back.
    virtual std::uint64_t nowMs() const = 0;
    // What an alertable sleep of the console does to time.
    virtual void sleep(std::uint32_t milliseconds) = 0;
};

class SK_EmuSystemClock final : public SK_EmuClock
{
public:
    std::uint64_t nowMs() const override;
    void sleep(std::uint32_t milliseconds) override;
};

// Time stands still until advanced; a sleep advances it by the time slept.
class SK_EmuManualClock final : public SK_EmuClock
{
public:
    explicit SK_EmuManualClock(std::uint64_t startMs = 0) : m_now(startMs) {}
    std::uint64_t nowMs() const override { return m_now; }
    void sleep(std::uint32_t milliseconds) override { m_now += milliseconds; }
    void advance(std::uint64_t milliseconds) { m_now += milliseconds; }

private:
    std::uint64_t m_now;
};
