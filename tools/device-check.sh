#!/usr/bin/env bash
# Compiles the bundle's sources on Linux as the iOS build compiles them, so that what the
# device compiler rejects fails here first:
#   - the source list is the Makefile's own (files under a directory named "linux" left out),
#     and the rule that leaves them out is checked on a scratch tree;
#   - clang 19 with its own C++ library (libc++), with the library parts that iOS 12's
#     libc++ lacks marked unavailable (device-check/ios12-library.h);
#   - every Objective-C++ source also sees the global names Apple's SDK headers declare
#     (device-check/sdk-global-names.h), so a collision with one of ours shows here;
#   - TESSARIN_SIMULATED=0, private frameworks only from prefs/core/ios/, the UIKit,
#     CoreFoundation, MessageUI, substrate, libroot, notify and dispatch stand-ins in place
#     of the SDK;
#   - -Wall -Werror, as Theos builds;
#   - every object's imports from the C++ library checked against what iOS 12's libc++ and
#     libc++abi export (device-check/ios12-cxx-exports.txt, made by tools/make-ios12-exports.py
#     from the 12.4 SDK's link stubs): libc++'s headers here, like any toolchain's own, assume
#     the newest system library, so a symbol only a newer iOS exports links and then keeps the
#     whole bundle from loading on an older one;
#   - last, a short list of library parts newer than iOS 12 that no compiler here can see,
#     refused by name.
set -u
top=$(cd "$(dirname "$0")/.." && pwd)
here=$top/tools/device-check
cxx=${TESSARIN_DEVICE_CXX:-clang++-19}
command -v "$cxx" >/dev/null || { echo "device-build check: $cxx is missing (tools/setup.sh installs it)"; exit 1; }
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
status=0

# The Makefile's source list, read with Theos's makefiles replaced by empty ones.
mkdir -p "$work/theos/makefiles"; : >"$work/theos/makefiles/common.mk"; : >"$work/theos/makefiles/bundle.mk"
bundle_sources() {  # $1: project directory
  make -s -C "$1" -f "$top/Makefile" THEOS="$work/theos" THEOS_MAKE_PATH="$work/theos/makefiles" \
    --eval 'tessarin-sources: ; @printf "%s\n" $(TessarinPrefs_FILES)' tessarin-sources
}

# The rule itself, on a scratch tree: a linux/ file at any depth stays out, start-up links last.
probe=$work/probe
mkdir -p "$probe/prefs/core/linux" "$probe/prefs/lists/linux/deeper" "$probe/prefs/lists"
touch "$probe/prefs/core/StartupAtLoad.mm" "$probe/prefs/core/linux/HostOnly.mm" \
  "$probe/prefs/lists/linux/deeper/HostOnly.cpp" "$probe/prefs/lists/Page.mm" "$probe/prefs/lists/Rules.cpp"
expected=$'prefs/lists/Page.mm\nprefs/lists/Rules.cpp\nprefs/core/StartupAtLoad.mm'
got=$(bundle_sources "$probe")
if [ "$got" != "$expected" ]; then
  printf 'device-build check: the Makefile source rule gives\n%s\ninstead of\n%s\n' "$got" "$expected"
  status=1
fi

sources=$(bundle_sources "$top") || { echo "device-build check: cannot read the Makefile's sources"; exit 1; }

# Stand-in headers, less the private frameworks the device build declares in prefs/core/ios/.
inc=$work/include; mkdir -p "$inc/mach"
for f in "$top"/platform/include/*; do
  case $(basename "$f") in Preferences|PreferencesUI|AppSupport|ManagedConfiguration|PassKit|IOKit|Simulator|dlfcn.h) ;;
    *) ln -s "$f" "$inc/$(basename "$f")";; esac
done
printf 'typedef unsigned int mach_port_t;\ntypedef int kern_return_t;\n' >"$inc/mach/mach.h"
gcc_objc=$(ls -d /usr/lib/gcc/*-linux-gnu/*/include | tail -1)

common=(-std=c++17 -stdlib=libc++ -Wall -Werror -DTESSARIN_SIMULATED=0 -Iprefs -I.)
objcxx=(-x objective-c++ -fobjc-runtime=gcc -fblocks -fexceptions -fobjc-exceptions
        -fconstant-string-class=NSConstantString -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1
        -D_NATIVE_OBJC_EXCEPTIONS -DCF_RETURNS_RETAINED= -DCF_RELEASES_ARGUMENT=
        -include "$here/sdk-global-names.h" -isystem "$inc" -isystem /usr/include/GNUstep -idirafter "$gcc_objc")
cd "$top"
# Two passes over each source. The first checks it against iOS 12's library as Apple's headers
# mark it; the second compiles it with the library headers as they stand, as a toolchain that
# brings its own compiles the bundle, and keeps the object to list what it imports.
marked=(-fsyntax-only -include "$here/ios12-library.h")
plain=(-c -Os)
printf '%s\n' "${common[@]}" "${marked[@]}" >"$work/cpp.flags"
printf '%s\n' "${common[@]}" "${marked[@]}" "${objcxx[@]}" >"$work/mm.flags"
printf '%s\n' "${common[@]}" "${plain[@]}" >"$work/cpp.objflags"
printf '%s\n' "${common[@]}" "${plain[@]}" "${objcxx[@]}" >"$work/mm.objflags"
count=$(printf '%s\n' $sources | wc -l)
mkdir -p "$work/objects"
# One compiler per core; each prints its diagnostics only when the source fails.
printf '%s\n' $sources | xargs -P "$(nproc)" -n 1 sh -c '
  case "$2" in *.mm) kind=mm;; *) kind=cpp;; esac
  out=$("$0" @"$1/$kind.flags" "$2" 2>&1) || { printf "%s\n" "$out"; exit 1; }
  object=$1/objects/$(printf "%s" "$2" | tr / %).o
  out=$("$0" @"$1/$kind.objflags" "$2" -o "$object" 2>&1) || { printf "%s\n" "$out"; exit 1; }' "$cxx" "$work" || status=1

# What the objects import from the C++ library (its std:: names, the ABI library's __cxa_
# functions and type-info classes, operator new and delete), against iOS 12's exports.
nm=${TESSARIN_DEVICE_NM:-llvm-nm-19}
cxx_library='^_Z(T[VIS])?N?K?St3__1|^_ZT[VIS]N?St|^_ZSt|^_ZT[VIS]N10__cxxabiv1|^_ZN10__cxxabiv1|^_Z(nw|na|dl|da)|^__cxa_|^__gxx_personality'
for object in "$work"/objects/*.o; do
  [ -f "$object" ] || continue
  source=$(basename "$object" .o)
  "$nm" -u --just-symbol-name "$object" | grep -E "$cxx_library" | sed "s|\$| $source|"
done | sort -u >"$work/imports"
missing=$(awk 'NR == FNR { exported[$1] = 1; next } !($1 in exported)' "$here/ios12-cxx-exports.txt" "$work/imports")
if [ -n "$missing" ]; then
  echo "imported from the C++ library but not exported by iOS 12's (the bundle would not load there):"
  printf '%s\n' "$missing" | while read -r symbol source; do
    printf '  %s  (%s, in %s)\n' "$symbol" "$(printf '%s' "$symbol" | c++filt)" "$(printf '%s' "$source" | tr % /)"
  done
  status=1
fi

# Newer than iOS 12, and invisible to the compilers here.
refused=(
  'std::filesystem|<filesystem>'              # libc++ has it from iOS 13; its markup cannot be forced here
  'std::pmr|<memory_resource>'                # iOS 17
  'kIOMainPortDefault'                        # iOS 15: use kIOMasterPortDefault
  'std::aligned_alloc|[^_a-z]aligned_alloc\(' # C11 aligned_alloc is in iOS's libc from iOS 13
  'timespec_get'                              # iOS 13
)
for pattern in "${refused[@]}"; do
  hits=$(printf '%s\n' $sources | xargs grep -n -E "$pattern" /dev/null | grep -v -E '^[^:]+:[0-9]+:\s*(//|\*|/\*)')
  [ -n "$hits" ] && { printf 'not available on iOS 12 (%s):\n%s\n' "$pattern" "$hits"; status=1; }
done

[ $status = 0 ] && echo "device-build check: $count sources clean"
exit $status
