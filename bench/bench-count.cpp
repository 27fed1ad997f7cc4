// Runs one subject so that callgrind can count its instructions:
//   valgrind --tool=callgrind --toggle-collect=countedRun bench-count NAME TIMES
//   bench-count --first NAME    runs it once and cold, and prints the microseconds of CPU time
//   bench-count --list     names of all subjects
//   bench-count --check    whether module and floor show and store the same

#include "bench/Stage.h"
#include "bench/Subjects.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

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

namespace {

const SubjectEntry* find(const char* label)
{
    const std::vector<SubjectEntry>& all = subjects();
    const auto found = std::find_if(all.begin(), all.end(), [label](const SubjectEntry& entry) {
        return entry.label() == label;
    });
    if (found == all.end()) {
        std::fprintf(stderr, "no subject named \"%s\"\n", label);
        return nullptr;
    }
    return &*found;
}

void runOnce(const Subject& subject, void (*run)(const Subject&))
{
    if (subject.before)
        subject.before();
    run(subject);
    if (subject.after)
        subject.after();
}

double microseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
}

int countRuns(const Subject& subject, int times)
{
    for (int time = 0; time < warmUps; ++time)
        runOnce(subject, [](const Subject& warmed) { warmed.run(); });
    for (int time = 0; time < times; ++time)
        runOnce(subject, countedRun);
    return 0;
}

int runFirst(const Subject& subject)
{
    runOnce(subject, [](const Subject& cold) {
        const double start = microseconds();
        countedRun(cold);
        std::printf("%.2f\n", microseconds() - start);
    });
    return 0;
}

} // namespace

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
        std::fprintf(stderr, "usage: bench-count --list | --check | --first NAME | NAME TIMES\n");
        return 2;
    }
    const bool first = std::strcmp(argv[1], "--first") == 0;
    const SubjectEntry* const entry = find(first ? argv[2] : argv[1]);
    if (!entry)
        return 2;
    return first ? runFirst(entry->make()) : countRuns(entry->make(), std::atoi(argv[2]));
}
