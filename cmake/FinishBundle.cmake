# Run when the application bundle has been installed: brings Qt into it, examines it, signs it.
#   BUNDLE     the bundle
#   MINIMUM    the macOS that its Info.plist asks for
#   IDENTITY   who signs; "-" signs ad hoc, which says nothing about who it was
#   MACDEPLOYQT, OTOOL, CODESIGN   programs; false where there is none
# A program that fails ends the installation. One that is absent is named, with what that means.
cmake_minimum_required(VERSION 3.25)

set(contents ${BUNDLE}/Contents)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# examine(<foreign> <newer>): which files load something from outside bundle and system, and which
# ask for a newer macOS than the bundle does; a line for each.
function(examine foreign_list newer_list)
    file(GLOB_RECURSE files LIST_DIRECTORIES false
        ${contents}/MacOS/* ${contents}/Frameworks/* ${contents}/PlugIns/*)
    foreach(file IN LISTS files)
        if(IS_SYMLINK ${file})
            continue()
        endif()
        file(RELATIVE_PATH name ${BUNDLE} ${file})
        execute_process(COMMAND ${OTOOL} -l ${file} OUTPUT_VARIABLE commands ERROR_QUIET)
        string(REGEX MATCHALL "name /[^\n]* \\(offset" loaded "${commands}")
        foreach(library IN LISTS loaded)
            string(REGEX REPLACE "^name (.*) \\(offset$" "\\1" library "${library}")
            if(NOT library MATCHES "^/(System/Library|usr/lib)/")
                string(APPEND foreign "  ${name}: ${library}\n")
            endif()
        endforeach()
        string(REGEX MATCHALL "(minos|LC_VERSION_MIN_MACOSX[^v]*version) [0-9.]+" asked
            "${commands}")
        foreach(version IN LISTS asked)
            string(REGEX REPLACE "^.* " "" version "${version}")
            if(version VERSION_GREATER MINIMUM)
                string(APPEND newer "  ${name}: ${version}\n")
            endif()
        endforeach()
    endforeach()
    set(${foreign_list} "${foreign}" PARENT_SCOPE)
    set(${newer_list} "${newer}" PARENT_SCOPE)
endfunction()

# From the inside outwards: a signature covers those of what is inside.
function(sign)
    file(GLOB_RECURSE plugins ${contents}/PlugIns/*.dylib)
    file(GLOB libraries LIST_DIRECTORIES true
        ${contents}/Frameworks/*.dylib ${contents}/Frameworks/*.framework)
    set(options --force --sign ${IDENTITY})
    if(NOT IDENTITY STREQUAL "-")
        list(APPEND options --options runtime --timestamp)
    endif()
    foreach(code IN LISTS plugins libraries ITEMS ${contents}/MacOS/restart ${BUNDLE})
        run(${CODESIGN} ${options} ${code})
    endforeach()
    run(${CODESIGN} --verify --deep --strict ${BUNDLE})
endfunction()

if(MACDEPLOYQT)
    message(STATUS "Bringing Qt into ${BUNDLE}")
    # Never with -always-overwrite, which removes the bundle's own libraries before copying them.
    run(${MACDEPLOYQT} ${BUNDLE} -verbose=1)
else()
    message(STATUS "Left out: no macdeployqt. The application needs Qt where it is on this machine.")
endif()

if(OTOOL)
    examine(foreign newer)
    # macdeployqt reports what it lacks and ends as if all were well.
    if(foreign AND MACDEPLOYQT)
        message(FATAL_ERROR "Still loaded from outside of the bundle:\n${foreign}")
    endif()
    if(newer)
        message(WARNING "The bundle says that macOS ${MINIMUM} is enough. These ask for more:\n"
            "${newer}Build Qt for ${MINIMUM}, or configure with a later "
            "CMAKE_OSX_DEPLOYMENT_TARGET.")
    endif()
else()
    message(STATUS "Left out: no otool. Nobody looked what the bundle loads, and what it asks for.")
endif()

if(CODESIGN)
    message(STATUS "Signing ${BUNDLE} as ${IDENTITY}")
    sign()
else()
    message(STATUS "Left out: no codesign. Apple silicon starts nothing that is not signed.")
endif()
