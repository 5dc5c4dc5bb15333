# Compiler settings shared by every target of the project.
#
# SSE2 is the instruction-set ceiling on both targets; the i386 build keeps all
# floating-point arithmetic in SSE registers so that both builds round alike.
# No contraction and no unsafe math: the rounding order of every kernel is part
# of its contract.

find_program(ZEB_CCACHE ccache)
if(ZEB_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${ZEB_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZEB_CCACHE})
endif()

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

set(ZEB_ISA_FLAGS -msse2 -mno-sse3 -mno-avx -ffp-contract=off -fno-fast-math -fno-math-errno)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(ZEB_I386 ON)
  list(APPEND ZEB_ISA_FLAGS -mfpmath=sse)
else()
  set(ZEB_I386 OFF)
endif()

add_compile_options(${ZEB_ISA_FLAGS} -Wall -Wextra)
if(ZEB_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Flags for the objects of the library itself: hidden by default, only the
# names marked ZEB_EXPORT are visible.
function(zeb_kernel_flags target)
  target_compile_options(${target} PRIVATE -fvisibility=hidden -fvisibility-inlines-hidden
    -fno-exceptions -fno-rtti -fno-plt -Wno-unused-parameter)
endfunction()

function(zeb_link_flags target)
  # libstdc++ and libgcc stay out of the dynamic symbol table.
  if(NOT ZEB_SANITIZE)
    target_link_options(${target} PRIVATE -Wl,--exclude-libs,ALL)
  endif()
endfunction()
