# What every target of the project shares: warnings, the linker, sanitizers, and the one way to declare a layer.

add_library(tarvane_options INTERFACE)
target_compile_options(tarvane_options INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # When g++ 12 inlines its own std::string, std::variant and std::array it sees overlapping copies, unset members and
  # writes past the end where there are none, and which of them depends on what it inlined, so on how the files of a
  # unity build fall together. The sanitizers and clang would tell of real ones.
  target_compile_options(tarvane_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized -Wno-stringop-overflow
    -Wno-array-bounds)
endif()
find_program(MOLD mold)
if(MOLD)
  target_link_options(tarvane_options INTERFACE -fuse-ld=mold)
endif()
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${CCACHE})
endif()
if(TARVANE_SANITIZE)
  target_compile_options(tarvane_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarvane_options INTERFACE -fsanitize=address,undefined)
endif()
if(TARVANE_CHECKS)
  target_compile_definitions(tarvane_options INTERFACE TARVANE_CHECKS=1)
endif()

# tarvane_layer(NAME deps...): the library of src/NAME, made of all its sources. Headers are included as "NAME/x.h", and
# each layer is found through an include root of its own (a link in the build folder), so that the include of a layer
# that isn't among the dependencies does not build.
function(tarvane_layer NAME)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  set(root ${PROJECT_BINARY_DIR}/layers/${NAME})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${NAME} SYMBOLIC)
  if(sources)
    add_library(tarvane_${NAME} STATIC ${sources})
    target_include_directories(tarvane_${NAME} PUBLIC ${root})
    target_link_libraries(tarvane_${NAME} PUBLIC ${ARGN} PRIVATE tarvane_options)
  else()
    add_library(tarvane_${NAME} INTERFACE)
    target_include_directories(tarvane_${NAME} INTERFACE ${root})
    target_link_libraries(tarvane_${NAME} INTERFACE ${ARGN})
  endif()
endfunction()

# tarvane_test(NAME deps...): one test program of tests/NAME, its cases discovered by CTest.
function(tarvane_test NAME)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${NAME} ${sources})
  # Each file of tests has short names of its own.
  set_target_properties(test_${NAME} PROPERTIES UNITY_BUILD OFF)
  target_compile_definitions(test_${NAME} PRIVATE
    TARVANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" TARVANE_TEST_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(test_${NAME} PRIVATE ${ARGN} tarvane_options GTest::gmock_main)
  gtest_discover_tests(test_${NAME} PROPERTIES TIMEOUT 300 DISCOVERY_TIMEOUT 60)
endfunction()
