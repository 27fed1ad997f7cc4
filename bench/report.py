"""Prints measured figures beside their floors and the targets that were set.

usage: report.py time BENCHMARK_JSON MEMORY_FILE
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
        "page switch and repaint": 1.10,
        "confirm": 1.50,
        "switch bar repaint, 3": 1.25,
        "switch bar repaint, 1000 scrolled": 1.25,
        "switch bar repaint, 1000 in sight": 1.25,
    },
}
CAPTURE_LIMIT_US = 100
CAPTURES = ("key capture, accepted", "key capture, verdict turns")
# From 1,000 to 10,000 items: 10 is linear, 100 quadratic.
GROWTH_LIMIT = 15
GROWTHS = ("scrolled", "in sight")
MEMORY_RATIOS = {
    "heap bytes of an open dialog": 1.05,
    "heap blocks of an open dialog": 1.05,
    "allocations to open a dialog": 1.05,
}
NOTHING_LEFT = ("bytes left", "blocks left")

ADDED = re.compile(r"add (\d+) (.*)")


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
            if ADDED.match(name):
                continue
            ratio = module / floor
            line = f"{name:44}{form(module):>14}{form(floor):>14}{ratio:8.3f}"
            if name in targets:
                line += f"  <= {targets[name]:.2f}  {self.verdict(ratio <= targets[name])}"
            print(line)
        self.without_figures(name for name in targets if name not in figures)

    def growth(self, figures, form):
        print(f"\n{'adding n items':28}{'n':>8}{'module':>14}{'per item':>12}{'floor':>14}"
              f"{'growth':>8}")
        last = {}
        judged = set()
        for name, (module, floor) in figures.items():
            added = ADDED.match(name)
            if not added:
                continue
            count, how = int(added[1]), added[2]
            line = (f"{how:28}{count:8}{form(module):>14}{form(module / count):>12}"
                    f"{form(floor):>14}")
            if how in last:
                growth = module / last[how]
                line += f"{growth:8.1f}"
                if count == 10000:
                    line += f"  <= {GROWTH_LIMIT}  {self.verdict(growth <= GROWTH_LIMIT)}"
                    judged.add(how)
            last[how] = module
            print(line)
        self.without_figures(f"growth, {how}" for how in GROWTHS if how not in judged)

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
    """{"name/module": a, "name/floor": b} as {name: (a, b)}, in the order of the names."""
    names = dict.fromkeys(label.rsplit("/", 1)[0] for label in figures)
    order = sorted(names, key=lambda name: (bool(ADDED.match(name)), sort_key(name)))
    sides = ("module", "floor")
    return {name: tuple(figures[f"{name}/{side}"] for side in sides) for name in order
            if all(f"{name}/{side}" in figures for side in sides)}


def sort_key(name):
    added = ADDED.match(name)
    return (added[2], int(added[1])) if added else (name, 0)


def read_times(path):
    """The least CPU time of each subject's repetitions: other processes can only add to it."""
    with open(path, encoding="utf-8") as handle:
        runs = json.load(handle)["benchmarks"]
    least = {}
    for run in runs:
        if run["run_type"] == "iteration":
            least[run["name"]] = min(run["cpu_time"], least.get(run["name"], run["cpu_time"]))
    return pairs(least)


def read_counts(path):
    with open(path, encoding="utf-8") as handle:
        rows = [line.rstrip("\n").split("\t") for line in handle]
    return pairs({label: float(count) for label, count in rows})


def read_memory(path):
    with open(path, encoding="utf-8") as handle:
        rows = [line.rstrip("\n").split("\t") for line in handle]
    return {name: (float(module), float(floor)) for name, module, floor in rows}


def main():
    kind, *paths = sys.argv[1:]
    report = Report(complete="some" not in paths)
    if kind == "time":
        figures = read_times(paths[0])
        print("CPU time, the least of all repetitions")
        report.ratios(figures, RATIO_TARGETS[kind], microseconds)
        report.growth(figures, microseconds)
        report.captures(figures)
        print("\nHeap")
        report.memory(read_memory(paths[1]))
    else:
        figures = read_counts(paths[0])
        print("Instructions")
        report.ratios(figures, RATIO_TARGETS[kind], whole)
        report.growth(figures, whole)
    print(f"\n{report.missed} of the targets above missed" if report.missed
          else "\nEvery target above met")
    return 1 if report.missed else 0


if __name__ == "__main__":
    sys.exit(main())
