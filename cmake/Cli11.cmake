# CLI11 is a folder of headers. The cross compiler must not see the rest of /usr/include, so the target's include path is a
# folder of ours that holds nothing but a link to it.
find_path(KZ_CLI11_INCLUDE CLI/CLI.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/cli11)
file(CREATE_LINK ${KZ_CLI11_INCLUDE}/CLI ${CMAKE_BINARY_DIR}/cli11/CLI SYMBOLIC)
add_library(kz_cli11 INTERFACE)
target_include_directories(kz_cli11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/cli11)
