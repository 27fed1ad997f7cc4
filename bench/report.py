"""Prints measured figures beside their floors and the targets that were set.

usage: report.py time BENCHMARK_JSON MEMORY_FILE FIRST_FILE
       report.py instructions COUNTS_FILE [some]    some: not every subject was counted
exit status 1 if a target was missed, or has no figure although every subject was measured.
"""
import json
import re
import sys

# What must hold: subject, largest ratio to the floor. Instructions for what runs once per dialog,
# since they do not depend on the machine's load; CPU time for the rest.
RATIO_TARGETS = {
    "instructions": {
        "construct": 1.08,
        "open and close": 1.05,
        "confirm": 1.50,
    },
    "time": {
        "first opening": 1.15,
        "page switch and repaint": 1.10,
        "confirm": 1.50,
        "switch bar repaint, 3": 1.25,
        "switch bar repaint, 1000 scrolled": 1.25,
        "switch bar repaint, 1000 in sight": 1.25,
    },
}
CAPTURE_LIMIT_US = 100
CAPTURES = ("key capture, accepted", "key capture, verdict turns")
# A switch bar that is filled stays below QTabBar, in instructions.
FILLINGS = [(how, count) for how in ("in sight", "scrolled") for count in (10, 100, 1000)]
MEMORY_RATIOS = {
    "heap bytes of an open dialog": 1.05,
    "heap blocks of an open dialog": 1.05,
    "allocations to open a dialog": 1.05,
}
NOTHING_LEFT = ("bytes left", "blocks left")

FILLED = re.compile(r"fill (\d+) (.*)")


class Report:
    def __init__(self, complete=True):
        self.missed = 0
        self.complete = complete

    def verdict(self, passed):
        self.missed += not passed
        return "pass" if passed else "MISS"

    def without_figures(self, names):
        """Targets whose subject was renamed or removed would be forgotten."""
        for name in names if self.complete else ():
            print(f"{name:44}{'no figure':>14}  {self.verdict(False)}")

    def ratios(self, figures, targets, form):
        print(f"\n{'':44}{'module':>14}{'floor':>14}{'ratio':>8}  target")
        for name, (module, floor) in figures.items():
            if FILLED.match(name):
                continue
            ratio = module / floor
            line = f"{name:44}{form(module):>14}{form(floor):>14}{ratio:8.3f}"
            if name in targets:
                line += f"  <= {targets[name]:.2f}  {self.verdict(ratio <= targets[name])}"
            print(line)
        self.without_figures(name for name in targets if name not in figures)

    def fillings(self, figures, form, judged):
        """growth: what ten times as many items cost; 10 is linear, 100 quadratic."""
        if not self.complete and not any(FILLED.match(name) for name in figures):
            return
        print(f"\n{'filling a bar':28}{'n':>8}{'module':>16}{'growth':>8}{'QTabBar':>16}{'growth':>8}"
              f"{'ratio':>8}")
        for how, count in FILLINGS:
            name = f"fill {count} {how}"
            if name not in figures:
                if judged:
                    self.without_figures([name])
                continue
            line = f"{how:28}{count:8}"
            fewer = figures.get(f"fill {count // 10} {how}")
            for side, figure in enumerate(figures[name]):
                growth = f"{figure / fewer[side]:.1f}" if fewer else ""
                line += f"{form(figure):>16}{growth:>8}"
            ratio = figures[name][0] / figures[name][1]
            line += f"{ratio:8.3f}"
            if judged:
                line += f"  < 1  {self.verdict(ratio < 1)}"
            print(line)

    def captures(self, figures):
        print()
        self.without_figures(name for name in CAPTURES if name not in figures)
        for name in CAPTURES:
            if name not in figures:
                continue
            module = figures[name][0]
            print(f"{name:44}{module:14.1f} us          <= {CAPTURE_LIMIT_US} us"
                  f"  {self.verdict(module <= CAPTURE_LIMIT_US)}")

    def memory(self, figures):
        self.ratios({name: figures[name] for name in MEMORY_RATIOS if name in figures},
                    MEMORY_RATIOS, whole)
        self.without_figures(name for name in NOTHING_LEFT if name not in figures)
        for name in NOTHING_LEFT:
            if name not in figures:
                continue
            module = figures[name][0]
            print(f"{name:44}{module:14,.0f}{figures[name][1]:14,.0f}          = 0"
                  f"     {self.verdict(module == 0)}")


def whole(value):
    return f"{value:,.0f}"


def microseconds(value):
    return f"{value:,.2f} us"


def pairs(figures):
    """{"name/module": a, "name/other": b} as {name: (a, b)}, in the order of the names."""
    sides = {}
    for label, figure in figures.items():
        name, side = label.rsplit("/", 1)
        sides.setdefault(name, {})[side == "module"] = figure
    return {name: (both[True], both[False]) for name, both in sorted(sides.items())
            if len(both) == 2}


def read_rows(path):
    with open(path, encoding="utf-8") as handle:
        return [line.rstrip("\n").split("\t") for line in handle]


def read_times(path, first_path):
    """The least CPU time of each subject's repetitions: other processes can only add to it."""
    with open(path, encoding="utf-8") as handle:
        runs = [(run["name"], run["cpu_time"]) for run in json.load(handle)["benchmarks"]
                if run["run_type"] == "iteration"]
    runs += [(label, float(time)) for label, time in read_rows(first_path)]
    least = {}
    for label, time in runs:
        least[label] = min(time, least.get(label, time))
    return pairs(least)


def read_counts(path):
    return pairs({label: float(count) for label, count in read_rows(path)})


def read_memory(path):
    return {name: (float(module), float(floor)) for name, module, floor in read_rows(path)}


def main():
    kind, *paths = sys.argv[1:]
    report = Report(complete="some" not in paths)
    if kind == "time":
        figures = read_times(paths[0], paths[2])
        print("CPU time, the least of all repetitions")
        report.ratios(figures, RATIO_TARGETS[kind], microseconds)
        report.fillings(figures, microseconds, judged=False)
        report.captures(figures)
        print("\nHeap")
        report.memory(read_memory(paths[1]))
    else:
        figures = read_counts(paths[0])
        print("Instructions")
        report.ratios(figures, RATIO_TARGETS[kind], whole)
        report.fillings(figures, whole, judged=True)
    print(f"\n{report.missed} of the targets above missed" if report.missed
          else "\nEvery target above met")
    return 1 if report.missed else 0


if __name__ == "__main__":
    sys.exit(main())
