// Cost of the channel: every command builds a fresh SK_Core, which opens the device,
// reads a channel id and a full configuration image before anything is sent.

#include "driver/driver.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>

namespace {

// A device that answers with a fixed image of 40 disks and 8 arrays.
class ImageDevice : public SK_HostEndpoint
{
public:
    ImageDevice() : m_image(SK_IMAGE_SIZE, 0)
    {
        std::uint32_t at = SK_IMAGE_HEADER_SIZE;
        for (int i = 0; i < 40; ++i, at += SK_DISK_RECORD_SIZE)
            SK_PutU32(m_image.data(), at, SK_TAG_DISK);
        for (int i = 0; i < 8; ++i, at += 1024) {
            SK_PutU32(m_image.data(), at, SK_TAG_ARRAY);
            SK_PutU32(m_image.data(), at + SK_ARRAY_LENGTH_OFFSET, 1024);
        }
    }
    std::uint64_t open(const std::string &, std::uint32_t, std::uint32_t) override { return 1; }
    void close(std::uint64_t) override {}
    SK_HostIo read(std::uint64_t, std::uint64_t position, std::uint8_t *data,
                   std::uint32_t size) override
    {
        if (position == 0)
            SK_PutU32(data, 0, 1);
        else
            std::memcpy(data, m_image.data(), std::min<std::size_t>(size, m_image.size()));
        return SK_HostIo{true, 0, size};
    }
    SK_HostIo write(std::uint64_t, std::uint64_t, const std::uint8_t *, std::uint32_t size) override
    {
        return SK_HostIo{true, 0, size};
    }

private:
    std::vector<std::uint8_t> m_image;
};

void BM_BuildCore(benchmark::State &state)
{
    SK_InstallPlatform(std::make_unique<SK_EmulatedPlatform>(std::make_shared<ImageDevice>()));
    for (auto _ : state) {
        SK_Core core(".", "Core1", 0);
        benchmark::DoNotOptimize(core.DiskCount);
    }
    SK_InstallPlatform(nullptr);
}
BENCHMARK(BM_BuildCore);

void BM_TrackedAllocation(benchmark::State &state)
{
    for (auto _ : state) {
        SKTL_AlignedBuffer buffer(1024, "bench");
        benchmark::DoNotOptimize(buffer.data());
    }
}
BENCHMARK(BM_TrackedAllocation);

} // namespace
