// Random events on the windows of module, kit and client, for as many as are asked for.
//
//   randomEvents COUNT [SEED]
//
// They come in rounds of ten thousand, each in one of the skins and languages and with a seed of
// its own. A finding names the seed of its round, which repeats it as the first round.

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzSetup.h"
#include "fuzz/events/Assistive.h"
#include "fuzz/events/EventRun.h"
#include "fuzz/events/Scene.h"
#include "fuzz/events/Surroundings.h"
#include "support/Files.h"

#include <QApplication>
#include <QDir>

#include <csignal>
#include <cstdio>
#include <random>
#include <unistd.h>

extern "C" void __sanitizer_set_death_callback(void (*callback)());
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options();

// An end by abort() is a finding, too. Leaks are what ./test --sanitize looks for.
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0:handle_abort=1:allocator_may_return_null=1:malloc_context_size=12";
}

namespace {

constexpr int roundLength = 10000;
// In seconds. A round takes some; one that takes this long stands still.
constexpr unsigned longestRound = 600;

quint32 roundSeed = 0;

void tellWhere()
{
    std::fprintf(stderr, "The last events, and the seed that repeats them: %u\n", roundSeed);
    EventRun::printLast();
}

void standsStill(int) { FuzzInput::fail("the round comes to its end", __FILE__, __LINE__); }

} // namespace

int main(int argc, char** argv)
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 0;
    if (count <= 0) {
        std::fprintf(stderr, "randomEvents COUNT [SEED]\n");
        return 2;
    }
    quint32 seed = argc > 2 ? quint32(std::strtoul(argv[2], nullptr, 10)) : std::random_device()();
    std::printf("%d events, seed %u\n", count, seed);
    std::fflush(stdout);

    const QString home = FuzzSetup::application() + QStringLiteral("/.com.kivotrade.tradeclient");
    MUST(QDir().mkpath(home));
    __sanitizer_set_death_callback(tellWhere);
    std::signal(SIGALRM, standsStill);
    Assistive::attach();
    Surroundings surroundings;
    Scene scene(QStringLiteral(MODULE_FILE), home);
    const QStringList skins = surroundings.skins();
    for (int left = count; left > 0; left -= roundLength, ++seed) {
        alarm(longestRound);
        roundSeed = seed;
        // From the seed alone, so that a round can be repeated by itself.
        const int look = int(seed % quint32(skins.size() * Surroundings::languageCount()));
        surroundings.reset(skins.at(look % skins.size()), look / skins.size());
        QFile::remove(home + QStringLiteral("/config/system_settings.ini"));
        QFile::remove(home + QStringLiteral("/config/trade_parameters.json"));
        EventRun run(scene, surroundings, seed);
        run.go(std::min(left, roundLength));
        scene.close();
        std::printf("%d events sent\n", count - left + run.sent());
        std::fflush(stdout);
    }
    return 0;
}
