# What all targets of the project share: warnings, sanitizers, and the rule that a folder sees the
# headers of the folders it links and no others.

add_library(tarnel_options INTERFACE)
target_compile_options(tarnel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual
  # No code looks at errno after a mathematical function.
  -fno-math-errno)
if(TARNEL_WERROR)
  target_compile_options(tarnel_options INTERFACE -Werror)
endif()
if(TARNEL_SANITIZE)
  target_compile_options(tarnel_options INTERFACE
    -fsanitize=${TARNEL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarnel_options INTERFACE -fsanitize=${TARNEL_SANITIZE})
endif()
if(TARNEL_FUZZ)
  # Lets a fuzzer see which way its input takes.
  target_compile_options(tarnel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tarnel_library(NAME core SOURCES a.cpp LINKS chart)
#
# The headers of a folder are included as "folder/header.h". Each library publishes an include root
# that holds a link to its own folder alone, so an include against the arrows does not build.
function(tarnel_library)
  cmake_parse_arguments(LIB "" "NAME" "SOURCES;LINKS" ${ARGN})
  add_library(${LIB_NAME} STATIC ${LIB_SOURCES})
  set(include_root ${CMAKE_BINARY_DIR}/include/${LIB_NAME})
  file(MAKE_DIRECTORY ${include_root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_root}/${LIB_NAME} SYMBOLIC)
  target_include_directories(${LIB_NAME} PUBLIC ${include_root})
  target_link_libraries(${LIB_NAME} PUBLIC ${LIB_LINKS} PRIVATE tarnel_options)
endfunction()
