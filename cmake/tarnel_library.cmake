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

# tarnel_headers(core core PUBLIC): lets `target` include the headers of `folder`, a path in the
# project, as "folder/header.h". The include root holds a link to that folder alone, so an include
# against the arrows does not build.
function(tarnel_headers target folder scope)
  set(include_root ${CMAKE_BINARY_DIR}/include/${target})
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY ${include_root}/${parent})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${include_root}/${folder} SYMBOLIC)
  target_include_directories(${target} ${scope} ${include_root})
endfunction()

# tarnel_library(NAME core SOURCES a.cpp LINKS chart). FOLDER is the folder's path in the project
# where it is not the library's name.
function(tarnel_library)
  cmake_parse_arguments(LIB "" "NAME;FOLDER" "SOURCES;LINKS" ${ARGN})
  if(NOT LIB_FOLDER)
    set(LIB_FOLDER ${LIB_NAME})
  endif()
  add_library(${LIB_NAME} STATIC ${LIB_SOURCES})
  tarnel_headers(${LIB_NAME} ${LIB_FOLDER} PUBLIC)
  target_link_libraries(${LIB_NAME} PUBLIC ${LIB_LINKS} PRIVATE tarnel_options)
endfunction()
