// Force-included by tools/device-check.sh into every source it compiles, before anything else.
//
// Debian's libc++ is configured without vendor availability markup, so every part of the
// library looks usable. Apple's libc++ marks what its dylib gained after a system release
// as unavailable on older systems: the bundle targets iOS 12, so everything the library
// gained from LLVM 9 on is unavailable there. Loading the library's configuration first and
// redefining its "introduced in LLVM n" markers here makes each later library header carry
// the markup that Apple's headers carry with an iOS 12 deployment target.
#pragma once

#if defined(__cplusplus)
#include <__config>

#define TESSARIN_IOS12_UNAVAILABLE(since) __attribute__((unavailable("not in the C++ library of iOS 12 (" since ")")))

#undef _LIBCPP_INTRODUCED_IN_LLVM_9
#define _LIBCPP_INTRODUCED_IN_LLVM_9 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_9_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_9_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 13.0")

#undef _LIBCPP_INTRODUCED_IN_LLVM_10
#define _LIBCPP_INTRODUCED_IN_LLVM_10 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_10_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_10_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 14.0")

#undef _LIBCPP_INTRODUCED_IN_LLVM_11
#define _LIBCPP_INTRODUCED_IN_LLVM_11 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_11_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_11_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 14.0")

#undef _LIBCPP_INTRODUCED_IN_LLVM_12
#define _LIBCPP_INTRODUCED_IN_LLVM_12 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_12_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_12_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 15.3")

#undef _LIBCPP_INTRODUCED_IN_LLVM_13
#define _LIBCPP_INTRODUCED_IN_LLVM_13 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_13_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_13_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 16.0")

#undef _LIBCPP_INTRODUCED_IN_LLVM_14
#define _LIBCPP_INTRODUCED_IN_LLVM_14 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_14_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_14_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 16.5")

#undef _LIBCPP_INTRODUCED_IN_LLVM_15
#define _LIBCPP_INTRODUCED_IN_LLVM_15 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_15_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_15_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 16.5")

#undef _LIBCPP_INTRODUCED_IN_LLVM_16
#define _LIBCPP_INTRODUCED_IN_LLVM_16 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_16_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_16_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 17.0")

#undef _LIBCPP_INTRODUCED_IN_LLVM_17
#define _LIBCPP_INTRODUCED_IN_LLVM_17 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_17_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_17_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("iOS 17.4")

#undef _LIBCPP_INTRODUCED_IN_LLVM_18
#define _LIBCPP_INTRODUCED_IN_LLVM_18 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_18_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_18_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("marked unavailable on every iOS release")

#undef _LIBCPP_INTRODUCED_IN_LLVM_19
#define _LIBCPP_INTRODUCED_IN_LLVM_19 0
#undef _LIBCPP_INTRODUCED_IN_LLVM_19_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_19_ATTRIBUTE TESSARIN_IOS12_UNAVAILABLE("marked unavailable on every iOS release")

// std::filesystem (iOS 13) is marked by a push and pop of its markup, which cannot carry
// "unavailable": leave it unmarked here; device-check.sh refuses it by name.
#undef _LIBCPP_INTRODUCED_IN_LLVM_9_ATTRIBUTE
#define _LIBCPP_INTRODUCED_IN_LLVM_9_ATTRIBUTE

#endif
