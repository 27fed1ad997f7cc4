// Runs one subject so that callgrind can count its instructions:
//   valgrind --tool=callgrind --toggle-collect=countedRun bench-count NAME TIMES
//   bench-count --list     names of all subjects
//   bench-count --check    whether module and floor show and store the same

#include "bench/Stage.h"
#include "bench/Subjects.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int warmUps = 2;

} // namespace

// Outside any namespace and left alone by the optimiser, for callgrind to find it by its name.
#ifdef __clang__
#define LEFT_ALONE __attribute__((noinline))
#else
#define LEFT_ALONE __attribute__((noipa))
#endif
extern "C" LEFT_ALONE void countedRun(const Subject& subject) { subject.run(); }

int main(int argc, char** argv)
{
    const Stage::Environment environment;
    const QApplication application(argc, argv);

    if (argc == 2 && std::strcmp(argv[1], "--list") == 0) {
        for (const SubjectEntry& entry : subjects())
            std::puts(entry.label().c_str());
        return 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "--check") == 0) {
        const auto found = differences();
        for (const std::string& line : found)
            std::puts(line.c_str());
        return found.empty() ? 0 : 1;
    }
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench-count --list | --check | NAME TIMES\n");
        return 2;
    }
    for (const SubjectEntry& entry : subjects()) {
        if (entry.label() != argv[1])
            continue;
        const Subject subject = entry.make();
        const int times = std::atoi(argv[2]);
        for (int time = -warmUps; time < times; ++time) {
            if (subject.before)
                subject.before();
            if (time < 0)
                subject.run();
            else
                countedRun(subject);
            if (subject.after)
                subject.after();
        }
        return 0;
    }
    std::fprintf(stderr, "no subject named \"%s\"\n", argv[1]);
    return 2;
}
