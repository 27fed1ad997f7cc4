// Heap of one open dialog, and what many dialogs leave behind:
//   bench-memory CYCLES
// prints "name module floor" lines.

#include "bench/BenchRecord.h"
#include "bench/FloorDialog.h"
#include "bench/Stage.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <QApplication>
#include <QPixmapCache>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

// The C library's own, under the names that it keeps for programs that replace them.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

std::atomic<long> liveBytes{0};
std::atomic<long> liveBlocks{0};
std::atomic<long> allocations{0};

// How many bytes were asked for stands in the last ones of the block. What the block could hold
// would not do: it varies by 16 bytes with the hole that the block was found in.
long* noteIn(void* block)
{
    return reinterpret_cast<long*>(static_cast<char*>(block) + malloc_usable_size(block)) - 1;
}

constexpr std::size_t noteBytes = sizeof(long);

void* counted(void* block, std::size_t size)
{
    if (block) {
        *noteIn(block) = long(size);
        liveBytes += long(size);
        ++liveBlocks;
        ++allocations;
    }
    return block;
}

void uncount(long bytes)
{
    liveBytes -= bytes;
    --liveBlocks;
}

} // namespace

// Every allocation of the process, Qt's included, comes by here.
extern "C" {

void* malloc(std::size_t size) { return counted(__libc_malloc(size + noteBytes), size); }

void* calloc(std::size_t count, std::size_t size)
{
    std::size_t bytes = 0;
    if (__builtin_mul_overflow(count, size, &bytes))
        return nullptr;
    return counted(__libc_calloc(1, bytes + noteBytes), bytes);
}

void* realloc(void* block, std::size_t size)
{
    if (!block)
        return malloc(size);
    const long before = *noteIn(block);
    void* const moved = __libc_realloc(block, size + noteBytes);
    if (moved)
        uncount(before);
    return counted(moved, size);
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size + noteBytes), size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) { return memalign(alignment, size); }

int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

void free(void* block)
{
    if (block)
        uncount(*noteIn(block));
    __libc_free(block);
}

} // extern "C"

namespace {

struct Heap {
    long bytes = liveBytes;
    long blocks = liveBlocks;
    long made = allocations;
};

template <typename Dialog> void cycle(BenchTrade& trade)
{
    Dialog dialog(&trade);
    Stage::open(dialog);
    dialog.close();
}

struct Figures {
    long bytes;
    long blocks;
    long made;
    long bytesLeft;
    long blocksLeft;
};

template <typename Dialog> Figures measure(int cycles)
{
    constexpr int warmUps = 20;
    BenchTrade trade;
    for (int time = 0; time < warmUps; ++time)
        cycle<Dialog>(trade);
    Stage::settle();

    Figures figures;
    {
        const Heap before;
        auto* const dialog = new Dialog(&trade);
        Stage::open(*dialog);
        const Heap open;
        figures.bytes = open.bytes - before.bytes;
        figures.blocks = open.blocks - before.blocks;
        figures.made = open.made - before.made;
        delete dialog;
        Stage::settle();
    }
    const Heap before;
    for (int time = 0; time < cycles; ++time)
        cycle<Dialog>(trade);
    Stage::settle();
    const Heap after;
    figures.bytesLeft = after.bytes - before.bytes;
    figures.blocksLeft = after.blocks - before.blocks;
    return figures;
}

} // namespace

int main(int argc, char** argv)
{
    const int cycles = argc > 1 ? std::atoi(argv[1]) : 10000;
    const Stage::Environment environment;
    const QApplication application(argc, argv);
    // It drops its pixmaps by time, not by need.
    QPixmapCache::setCacheLimit(0);

    const Figures floor = measure<FloorDialog>(cycles);
    const Figures module = measure<CTradeConfigWidget>(cycles);
    const auto line = [](const char* name, long ours, long least) {
        std::printf("%s\t%ld\t%ld\n", name, ours, least);
    };
    line("heap bytes of an open dialog", module.bytes, floor.bytes);
    line("heap blocks of an open dialog", module.blocks, floor.blocks);
    line("allocations to open a dialog", module.made, floor.made);
    line("bytes left", module.bytesLeft, floor.bytesLeft);
    line("blocks left", module.blocksLeft, floor.blocksLeft);
    return 0;
}
