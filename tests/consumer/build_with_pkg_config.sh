#!/bin/sh
# Compiles the consumer with what pkg-config says of the installed library, and runs it.
#
#   build_with_pkg_config.sh LIBRARY_FOLDER COMPILER [EMULATOR]
set -eu
here=$(cd "$(dirname "$0")" && pwd)
libraries=$1 compiler=$2 emulator=${3:-}

export PKG_CONFIG_LIBDIR="$libraries/pkgconfig"
cflags=$(pkg-config --cflags plateconfig)
libs=$(pkg-config --libs plateconfig)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# shellcheck disable=SC2086  # Several options each.
case $("$compiler" -dumpmachine) in
  *mingw*)
    # The compiler's own libraries go into the program, this one stays a DLL, which is looked for beside the program.
    "$compiler" -std=c++20 -static $cflags "$here/consumer.cpp" -Wl,-Bdynamic $libs -Wl,-Bstatic -o "$folder/consumer.exe"
    cp "$libraries"/../bin/plateconfig.dll "$folder"
    ;;
  *) "$compiler" -std=c++20 $cflags "$here/consumer.cpp" $libs -Wl,-rpath,"$libraries" -o "$folder/consumer.exe" ;;
esac
cd "$folder"
$emulator ./consumer.exe
