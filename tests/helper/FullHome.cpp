// A module whose data directory fills its buffer: 512 bytes without an end, and nothing behind
// them that may be read.
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

extern "C" {
__attribute__((visibility("default"))) void* CreateModuleWidget(void*) { return nullptr; }

__attribute__((visibility("default"))) const char* ApplicationHomePath()
{
    constexpr std::size_t bufferSize = 512;
    static char* const buffer = [] {
        const auto page = std::size_t(sysconf(_SC_PAGESIZE));
        void* const pages
            = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        char* const guard = static_cast<char*>(pages) + page;
        mprotect(guard, page, PROT_NONE);
        std::memset(guard - bufferSize, 'x', bufferSize);
        return guard - bufferSize;
    }();
    buffer[0] = '/';
    return buffer;
}
}
