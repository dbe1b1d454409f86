# What every target of the project is compiled with. Contraction is off and 32-bit builds use SSE, so that
# every compiler prints the same digits.
add_library(orve_compile INTERFACE)
target_compile_features(orve_compile INTERFACE cxx_std_20)
target_compile_options(orve_compile INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  $<$<BOOL:${ORVE_WERROR}>:-Werror>
  # g++ 12 reports overlapping copies in sums of short texts and uninitialised members of moved variants, where there
  # are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
  -ffp-contract=off
  # clang otherwise works out both sides of a condition, which raises exceptions that the code avoids: some hosts let
  # them trap.
  $<$<CXX_COMPILER_ID:Clang>:-ffp-exception-behavior=maytrap>
  $<$<AND:$<CXX_COMPILER_ID:GNU,Clang>,$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>>:-msse2 -mfpmath=sse>)
# The checks for undefined behaviour take a third of a compilation. What isn't shipped, a test's own code or a
# generator, goes with the address sanitizer alone: set ORVE_ADDRESS_ONLY on the target.
if(ORVE_SANITIZE)
  target_compile_options(orve_compile INTERFACE
    -fsanitize=address$<$<NOT:$<BOOL:$<TARGET_PROPERTY:ORVE_ADDRESS_ONLY>>>:,undefined> -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orve_compile INTERFACE -fsanitize=address,undefined)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The sources of a module compiled a dozen at a time, which more than halves the time of a build. A build that goes
# without precompiled headers, as for a compiler cache, compiles them one by one too; so does the clang preset, so that
# a source that leans on its neighbours is found.
set(orve_unity_default ON)
if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
  set(orve_unity_default OFF)
endif()
option(ORVE_UNITY "Compile the sources of a module a dozen at a time" ${orve_unity_default})
function(orve_unity target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${ORVE_UNITY} UNITY_BUILD_BATCH_SIZE 12)
endfunction()

# The standard headers that most sources need, compiled once for a target. The clang preset goes without, so that a
# source that forgets an include is found.
option(ORVE_PRECOMPILE "Compile the standard headers once for each target" ON)
function(orve_precompile target)
  if(ORVE_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE
      <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <string> <string_view> <utility> <vector>)
  endif()
endfunction()

# Names of a static library stay inside the program or plugin that it is linked into.
function(orve_hidden target)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()
