#include "guarded.hpp"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace kt {

namespace {

std::size_t pageSize()
{
    static const std::size_t page = std::size_t(sysconf(_SC_PAGESIZE));
    return page;
}

std::size_t roundUp(std::size_t n, std::size_t to) { return (n + to - 1) / to * to; }

}  // namespace

GuardedBytes::GuardedBytes(std::size_t elemSize, const Shape& shape) : shape_(shape), elemSize_(elemSize)
{
    if (shape.width < 0 || shape.height < 1 || shape.channels < 1 || shape.padBytes < 0 ||
        shape.offset < 0)
        throw std::invalid_argument("Guarded: bad shape");
    rowBytes_ = std::size_t(shape.width) * shape.channels * elemSize;
    const std::size_t stride = rowBytes_ + std::size_t(shape.padBytes);
    if (stride > 0x7FFFFFFF) throw std::invalid_argument("Guarded: step beyond 32 bits");
    // The last row in memory carries no padding, so that its last byte touches the guard.
    span_ = stride * std::size_t(shape.height - 1) + rowBytes_;
    const std::size_t page = pageSize();
    const std::size_t lead = shape.guard == Guard::Before ? std::size_t(shape.offset) : 0;
    const std::size_t data = roundUp(lead + span_ + (span_ == 0), page);
    mapBytes_ = data + 2 * page;
    map_ = mmap(nullptr, mapBytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (map_ == MAP_FAILED) throw std::runtime_error("Guarded: mmap failed");
    unsigned char* dataStart = static_cast<unsigned char*>(map_) + page;
    if (mprotect(dataStart, data, PROT_READ | PROT_WRITE) != 0)
        throw std::runtime_error("Guarded: mprotect failed");
    lowest_ = shape.guard == Guard::Before ? dataStart + lead : dataStart + data - span_;
    step_ = int(stride);
    first_ = lowest_;
    if (shape.bottomUp) {
        first_ = lowest_ + stride * std::size_t(shape.height - 1);
        step_ = -step_;
    }
    // Fresh pages are zero; a recognisable non-zero pattern shows reads of unset memory.
    fillBytes(0xCD);
}

GuardedBytes::~GuardedBytes() { munmap(map_, mapBytes_); }

testing::AssertionResult GuardedBytes::unchangedSince(const std::vector<unsigned char>& before) const
{
    return restUnchangedSince(before, 0);
}

testing::AssertionResult GuardedBytes::restUnchangedSince(const std::vector<unsigned char>& before,
                                                          int writtenChannels) const
{
    if (before.size() != span_) return testing::AssertionFailure() << "snapshot of another image";
    const std::size_t stride = rowBytes_ + std::size_t(shape_.padBytes);
    const std::size_t pixelBytes = std::size_t(shape_.channels) * elemSize_;
    const std::size_t writtenBytes = std::size_t(writtenChannels) * elemSize_;
    for (std::size_t i = 0; i < span_; ++i) {
        const std::size_t inRow = i % stride;
        if (inRow < rowBytes_ && inRow % pixelBytes < writtenBytes) continue;
        if (lowest_[i] != before[i]) {
            // Report in the caller's terms: row index (bottom-up counts from the top), and
            // where in that row the byte is.
            std::size_t memRow = i / stride;
            int y = shape_.bottomUp ? int(shape_.height - 1 - memRow) : int(memRow);
            auto r = testing::AssertionFailure();
            r << "byte changed at row " << y << ", byte " << inRow;
            if (inRow < rowBytes_)
                r << " (pixel " << inRow / pixelBytes << ", channel " << inRow % pixelBytes / elemSize_
                  << ")";
            else
                r << " (padding)";
            return r << ": was 0x" << std::hex << int(before[i]) << ", now 0x" << int(lowest_[i]);
        }
    }
    return testing::AssertionSuccess();
}

}  // namespace kt
