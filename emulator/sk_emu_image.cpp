#include "emulator/sk_emu_image.h"

#include "emulator/sk_emu_wire.h"

#include <algorithm>

namespace sk_emu {

using namespace wire;

namespace {

constexpr std::uint64_t kCoreDeviceId = 0x534B434F52450001ull; // "SKCORE", 1

class ImageWriter
{
public:
    ImageWriter(const Model &model, const ImageOptions &options)
        : m_model(model), m_options(options), m_bytes(image::HeaderSize, 0)
    {
        put32(m_bytes.data(), 0, 1); // reply status
        put32(m_bytes.data(), 4, options.channelId);
        put64(m_bytes.data(), 8, model.generation);
        put32(m_bytes.data(), 24, 2);
        put32(m_bytes.data(), 28, 1);
        put32(m_bytes.data(), 32, 4096);
        put64(m_bytes.data(), image::GenerationAt, model.generation);
    }

    std::vector<std::uint8_t> write()
    {
        writeCoreDevice();
        for (std::size_t i = 0; i < m_model.controllers.size(); ++i)
            writeController(m_model.controllers[i], static_cast<std::uint32_t>(i));
        for (const Disk &disk : m_model.disks)
            writeDisk(disk);
        for (const Enclosure &enclosure : m_model.enclosures)
            writeEnclosure(enclosure);
        for (const Array &array : m_model.arrays) {
            writeArray(array, array.layout);
            if (array.target)
                writeArray(array, *array.target);
        }
        return std::move(m_bytes);
    }

private:
    // Room for a record of `size` bytes; null when it would pass the image's limit.
    std::uint8_t *append(std::size_t size)
    {
        if (m_full || m_bytes.size() + size > image::MaxSize) {
            m_full = true;
            return nullptr;
        }
        m_bytes.resize(m_bytes.size() + size, 0);
        return m_bytes.data() + m_bytes.size() - size;
    }

    std::size_t diskRecordSize() const
    {
        return m_options.previousFormat ? image::DiskSizePrevious : image::DiskSize;
    }

    void writeCoreDevice()
    {
        std::uint8_t *r = append(diskRecordSize());
        if (!r)
            return;
        put32(r, 0, image::TagDisk);
        put64(r, 4, kCoreDeviceId);
        put32(r, 36, code::DiskTypeCore);
        put32(r, 44, code::DiskOnline);
        if (!m_options.previousFormat)
            putText(r, 136, 64, m_model.host.driverBuild);
    }

    void writeController(const Controller &c, std::uint32_t index)
    {
        std::uint8_t *r = append(image::ControllerSize);
        if (!r)
            return;
        put32(r, 0, image::TagController);
        put64(r, 4, c.id);
        put16(r, 12, 0);
        put16(r, 14, 1 + index);
        putText(r, 36, 16, c.name);
        putText(r, 56, 32, c.biosBuild);
        put64(r, 88, c.maxArraySectors);
        put64(r, 96, c.serial);
        put32(r, 104, c.ports);
        put16(r, 108, c.pciVendor);
        put16(r, 110, c.pciDevice);
        put32(r, 112, index);
        put16(r, 116, c.pciSubVendor);
        put16(r, 118, c.pciSubDevice);
        put64(r, 120, c.id);
        put16(r, 128, c.origPciVendor);
        put16(r, 130, c.origPciDevice);
        put32(r, 132, c.pciLocation);
    }

    void writeDisk(const Disk &d)
    {
        std::uint8_t *r = append(diskRecordSize());
        if (!r)
            return;
        put32(r, 0, image::TagDisk);
        put64(r, 4, d.id);
        put16(r, 12, diskDeviceRoute(d));
        put16(r, 14, diskCoreRoute(d));
        put64(r, 28, d.capacity);
        put32(r, 36, d.type);
        put32(r, 44, d.state);
        put32(r, 48, d.globalSpare ? code::SpareGlobal : 0);
        put32(r, 84, d.features);
        put32(r, 88, d.portType);
        if (m_options.previousFormat)
            return;
        putText(r, 128, 8, d.firmware);
        putText(r, 136, 40, d.model);
        putText(r, 176, 20, d.serial);
        put8(r, 196, '0' + d.controller % 10);
        put8(r, 197, '0' + d.port % 10);
        std::uint64_t largest = 0, total = 0;
        for (const Extent &e : freeExtents(m_model, d)) {
            largest = std::max(largest, e.size);
            total += e.size;
        }
        put64(r, 200, largest);
        put64(r, 208, total);
        putText(r, 216, 8, d.vendor);
    }

    void writeEnclosure(const Enclosure &e)
    {
        std::uint8_t *r = append(image::EnclosureSize);
        if (!r)
            return;
        put32(r, 0, image::TagEnclosure);
        put64(r, 4, e.id);
        put16(r, 12, 64 + e.slot);
        put16(r, 14, 1 + e.controller);
        putText(r, 20, 8, e.vendor);
        putText(r, 28, 16, e.product);
        putText(r, 44, 4, e.revision);
        putText(r, 48, 8, e.serial);
    }

    void writeReference(std::uint8_t *r, std::size_t at, std::uint64_t id)
    {
        put64(r, at, id);
        if (const Disk *disk = m_model.findDisk(id)) {
            put16(r, at + 8, diskDeviceRoute(*disk));
            put16(r, at + 10, diskCoreRoute(*disk));
        } else if (const Array *array = m_model.findArray(id)) {
            put16(r, at + 8, array->route);
            put16(r, at + 10, 0);
        }
    }

    void writeArray(const Array &a, const Layout &layout)
    {
        const std::size_t size = arrayRecordSize(layout, a);
        std::uint8_t *r = append(size);
        if (!r)
            return;
        put32(r, 0, image::TagArray);
        put32(r, 8, a.state);
        put32(r, 12, layout.type);
        put32(r, 16, a.task.type);
        put32(r, 24, a.task.state);
        put64(r, 44, a.id);
        put16(r, 52, a.route);
        put16(r, 54, 0);
        put64(r, 80, layout.capacity);
        put64(r, 96, a.generation);
        put32(r, 104, layout.firstCount * layout.secondCount);
        put32(r, 108, layout.firstCount);
        put32(r, 112, layout.secondCount);
        put32(r, 116, static_cast<std::uint32_t>(a.parents.size()));
        put32(r, 128, a.cachePolicy);
        put32(r, 140, static_cast<std::uint32_t>(a.spares.size()));
        put32(r, 144, static_cast<std::uint32_t>(size));
        put32(r, 148, a.task.progress);
        put32(r, 152, a.attributes);
        put32(r, 168, a.priority);
        putText(r, 176, 32, a.name);
        put32(r, 208, a.referenceCount);
        put64(r, 212, a.copyFrom);
        put64(r, 220, a.copyTo);
        put32(r, 272, a.cacheTagSize);

        // A tiered array's members are arrays; their IDs travel as substitutes.
        if (layout.type == code::TypeTier && layout.members.size() >= 2) {
            put64(r, 252, layout.members[0].disk);
            put64(r, 260, layout.members[1].disk);
        }

        std::size_t at = image::ArrayFixedSize;
        const std::size_t slots = static_cast<std::size_t>(layout.firstCount) * layout.secondCount;
        for (std::size_t i = 0; i < slots; ++i, at += image::MemberSize) {
            const Member m = i < layout.members.size() ? layout.members[i] : Member{};
            writeReference(r, at, m.disk);
            put64(r, at + 16, m.offset);
            put64(r, at + 24, m.size);
            put64(r, at + 32, m.dataOffset);
            put64(r, at + 40, m.dataSize);
            put32(r, at + 48, m.flags);
        }
        for (std::uint64_t parent : a.parents) {
            writeReference(r, at, parent);
            at += image::ReferenceSize;
        }
        for (std::uint64_t spare : a.spares) {
            writeReference(r, at, spare);
            at += image::ReferenceSize;
        }
    }

    const Model &m_model;
    const ImageOptions &m_options;
    std::vector<std::uint8_t> m_bytes;
    bool m_full = false;
};

} // namespace

std::size_t arrayRecordSize(const Layout &layout, const Array &array)
{
    return image::ArrayFixedSize +
           static_cast<std::size_t>(layout.firstCount) * layout.secondCount * image::MemberSize +
           (array.parents.size() + array.spares.size()) * image::ReferenceSize;
}

std::vector<std::uint8_t> writeImage(const Model &model, const ImageOptions &options)
{
    return ImageWriter(model, options).write();
}

} // namespace sk_emu
