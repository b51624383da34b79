# pugixml in its wide-character build, expat and libcsv, from the Debian source packages that the set-up step fetched. The
# first two are linked into the library that uses them; on Windows libcsv is a DLL, as its licence, the LGPL, wants it.
enable_language(C)

# kz_source(PACKAGE FILE OUT): the folder of a file that the source package must have
function(kz_source package file out)
  set(folder ${CMAKE_SOURCE_DIR}/build/deps/${package})
  if(NOT EXISTS ${folder}/${file})
    message(FATAL_ERROR "the source of ${package} is not in ${folder}: run ./dev build, which fetches it")
  endif()
  cmake_path(GET file PARENT_PATH path)
  set(${out} ${folder}/${path} PARENT_SCOPE)
endfunction()

function(kz_source_library target type)
  add_library(${target} ${type} ${ARGN})
  if(KZ_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address)
  endif()
  if(KZ_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

kz_source(pugixml src/pugixml.cpp pugixml)
kz_source_library(kz_pugixml STATIC ${pugixml}/pugixml.cpp)
target_include_directories(kz_pugixml SYSTEM PUBLIC ${pugixml})
target_compile_definitions(kz_pugixml PUBLIC PUGIXML_WCHAR_MODE)

kz_source(expat expat/lib/expat.h expat)
kz_source_library(kz_expat STATIC ${expat}/xmlparse.c ${expat}/xmlrole.c ${expat}/xmltok.c)
target_include_directories(kz_expat SYSTEM PUBLIC ${expat} PRIVATE ${CMAKE_BINARY_DIR}/expat)
target_compile_definitions(kz_expat PUBLIC XML_STATIC PRIVATE $<$<NOT:$<BOOL:${WIN32}>>:HAVE_GETRANDOM>)
# What expat's own build finds out about the machine.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/expat/expat_config.h CONTENT "#define BYTEORDER 1234\n#define XML_CONTEXT_BYTES 1024\n")

kz_source(libcsv libcsv.c libcsv)
if(WIN32)
  kz_source_library(kz_csv SHARED ${libcsv}/libcsv.c)
  set_target_properties(kz_csv PROPERTIES PREFIX "" IMPORT_PREFIX "" OUTPUT_NAME libcsv)
  kz_shipped(kz_csv)
  file(STRINGS ${libcsv}/csv.h numbers REGEX "^#define CSV_(MAJOR|MINOR|RELEASE) ")
  list(TRANSFORM numbers REPLACE ".* " "")
  list(JOIN numbers . version)
  kz_version(kz_csv "libcsv, the reader of CSV tables" ${version})
else()
  kz_source_library(kz_csv STATIC ${libcsv}/libcsv.c)
endif()
target_include_directories(kz_csv SYSTEM PUBLIC ${libcsv})
