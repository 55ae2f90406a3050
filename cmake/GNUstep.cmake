# Objective-C on Debian: clang with GCC's Objective-C runtime, GNUstep Base and libBlocksRuntime.
find_program(GNUSTEP_CONFIG gnustep-config REQUIRED)
execute_process(COMMAND ${GNUSTEP_CONFIG} --variable=GNUSTEP_SYSTEM_HEADERS
  OUTPUT_VARIABLE GNUSTEP_HEADERS OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT GNUSTEP_HEADERS)
  set(GNUSTEP_HEADERS /usr/include/GNUstep)
endif()
# clang does not find GCC's runtime by itself; take it from the installed GCC.
file(GLOB _gcc_dirs /usr/lib/gcc/x86_64-linux-gnu/* /usr/lib/gcc/aarch64-linux-gnu/*)
set(GCC_OBJC_DIR "")
foreach(d ${_gcc_dirs})
  if(EXISTS ${d}/include/objc/objc.h)
    set(GCC_OBJC_DIR ${d})
  endif()
endforeach()
if(NOT GCC_OBJC_DIR)
  message(FATAL_ERROR "GCC's Objective-C runtime headers (libobjc-12-dev) are missing")
endif()

set(OBJC_COMMON_FLAGS
  -fobjc-runtime=gcc -fblocks -fexceptions -fobjc-exceptions
  -fconstant-string-class=NSConstantString
  -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 -D_NATIVE_OBJC_EXCEPTIONS
  -DTESSARIN_SIMULATED=1
  -Wall -Wno-unused-parameter)
foreach(lang OBJC OBJCXX)
  add_compile_options("$<$<COMPILE_LANGUAGE:${lang}>:${OBJC_COMMON_FLAGS}>")
endforeach()
# Our stand-in frameworks come before GNUstep so <CoreFoundation/...>, <UIKit/...> resolve to them.
include_directories(SYSTEM ${CMAKE_SOURCE_DIR}/platform/include ${GNUSTEP_HEADERS})
# GCC's include folder also holds its own stddef.h and friends: search it last, for <objc/...> only.
foreach(lang OBJC OBJCXX)
  add_compile_options("$<$<COMPILE_LANGUAGE:${lang}>:-idirafter;${GCC_OBJC_DIR}/include>")
endforeach()
link_directories(${GCC_OBJC_DIR})
# BlocksRuntime must come before gnustep-base: GNUstep Base exports its own _Block_copy and
# _NSConcreteStackBlock, and with it first Block_copy hands back the stack block uncopied.
set(OBJC_LIBS BlocksRuntime gnustep-base objc pthread dl m)
