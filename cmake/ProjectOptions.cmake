# What every target of this tree is compiled with. Linked PRIVATE, so that nothing of it leaks
# into a host that links the module's static library.
add_library(projectOptions INTERFACE)

target_compile_options(projectOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Woverloaded-virtual -Wnull-dereference)
if(TRADECONFIG_WERROR)
    target_compile_options(projectOptions INTERFACE -Werror)
endif()

target_compile_definitions(projectOptions INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    # A host may do without the keywords; moc skips what is written with them.
    QT_NO_KEYWORDS
    QT_DEPRECATED_WARNINGS
    # Release builds would otherwise drop file and function from the log lines.
    QT_MESSAGELOGCONTEXT)

if(TRADECONFIG_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(TRADECONFIG_FUZZ)
    add_compile_options(-fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(TRADECONFIG_COVERAGE)
    add_compile_options(--coverage -O0)
    add_link_options(--coverage)
endif()

# A library that stays in the process once it was loaded, even if the host unloads it. The toolkit
# keeps what lies in its image longer than any dialog lives: keys of settings files, names of fonts
# and styles, the function that makes accessibility interfaces. macOS never unloads the module
# anyway, since it has Objective-C in it, nor what the module links.
function(tradeconfig_stays_loaded target)
    if(NOT APPLE)
        target_link_options(${target} PRIVATE LINKER:-z,nodelete)
    endif()
endfunction()
