# Compiler settings of every target, and orvo_room(): one static library for each room of src/.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(orvo_settings INTERFACE)
target_compile_options(orvo_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_include_directories(orvo_settings INTERFACE "${CMAKE_SOURCE_DIR}/src")

if(ORVO_SANITIZE)
    target_compile_options(orvo_settings INTERFACE
        -O1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvo_settings INTERFACE -fsanitize=address,undefined)
endif()
if(ORVO_FUZZ)
    target_compile_options(orvo_settings INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        "-fsanitize-coverage-ignorelist=${CMAKE_SOURCE_DIR}/bench/fuzz/around.txt")
    target_link_options(orvo_settings INTERFACE -fsanitize=address,undefined)
endif()
if(WIN32)
    target_compile_definitions(orvo_settings INTERFACE
        WINVER=0x0601 _WIN32_WINNT=0x0601 WIN32_LEAN_AND_MEAN NOMINMAX)
    target_link_options(orvo_settings INTERFACE -static)
endif()

# orvo_room(name SOURCES file... [LINKS room...])
# A room links only the rooms that it may use; it is named orvo_<name>.
function(orvo_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_library(orvo_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(orvo_${name} PUBLIC orvo_settings ${ROOM_LINKS})
endfunction()
