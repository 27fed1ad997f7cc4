#pragma once

namespace HostPlatform {

enum class PathState {
    Directory,
    Missing,
    InTheWay ///< something that is not a directory stands there
};

/**
 * The first of path, ".path", "..path" and so on that is a directory or can be made one.
 * The search gives up on nothing but success.
 *
 * @p stateOf(path) returns a PathState, @p create(path) tells whether it made the directory,
 * @p withDot(path) puts one "." in front of the whole path.
 */
template <typename Path, typename StateOf, typename Create, typename WithDot>
Path firstUsableDirectory(Path path, const StateOf& stateOf, const Create& create,
                          const WithDot& withDot)
{
    for (;; path = withDot(path)) {
        const PathState state = stateOf(path);
        if (state == PathState::Directory)
            return path;
        if (state == PathState::Missing && create(path))
            return path;
    }
}

} // namespace HostPlatform
