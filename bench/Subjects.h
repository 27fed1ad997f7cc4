#pragma once

#include <functional>
#include <string>
#include <vector>

/// One thing to measure. Only run() counts; before() and after() may be empty.
struct Subject {
    std::function<void()> before;
    std::function<void()> run;
    std::function<void()> after;
};

/// A subject by name, once done by the module and once by what it stands beside.
struct SubjectEntry {
    std::string name;
    std::string side; ///< "module", or "floor", or "QTabBar"
    std::function<Subject()> make;

    std::string label() const { return name + '/' + side; }
};

/// All subjects, the two sides of each next to each other.
const std::vector<SubjectEntry>& subjects();

/// Compares what module and floor show, page by page and pixel by pixel, and what they store.
/// Returns what differs, one line each; empty if nothing does.
std::vector<std::string> differences();
