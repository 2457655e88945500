#!/bin/sh
# Compares what a built library exports with the committed lists beside this script:
#
#   exported_names.txt     the classes and free functions that make up the library's interface
#   exported_members.txt   every function, virtual table and type information exported for them
#
#   compare_exports.sh LIBRARY NM OBJDUMP            fails, and says why, when they differ
#   compare_exports.sh LIBRARY NM OBJDUMP --update   rewrites the list of members; read the difference before committing
#
# Both lists hold for every platform. A new class or function is added to exported_names.txt by hand.
set -eu
export LC_ALL=C

library=$1 nm=$2 objdump=$3
lists=$(cd "$(dirname "$0")" && pwd)
actual=$(mktemp)
trap 'rm -f "$actual"' EXIT

mangled_names() {
  case $library in
    *.dll) "$objdump" -p "$library" | awk '/Ordinal\/Name Pointer/ { names = 1; next } names && NF == 0 { exit } names { print $NF }' ;;
    *) "$nm" -D --defined-only "$library" | awk '{ print $NF }' ;;
  esac
}

# Demangled, with the standard library's types as one writes them. A constructor comes under several names that read
# the same. The text of a type's name belongs to its type information and is exported on some platforms only.
readable_names() {
  mangled_names | c++filt | sed \
    -e 's/std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >/std::string/g' \
    -e 's/\[abi:cxx11\]//g' \
    -e 's/std::vector<\([^<>]*\), std::allocator<\1 *> >/std::vector<\1>/g' \
    -e 's/std::vector<\(std::vector<[^<>]*>\), std::allocator<\1 *> >/std::vector<\1>/g' \
    -e '/^typeinfo name for /d' | sort -u
}

# The class or free function that a line belongs to.
owners() { sed -e 's/^typeinfo for //' -e 's/^vtable for //' -e 's/[(:].*//' "$1" | sort -u; }

readable_names >"$actual"
[ -s "$actual" ] || { echo "$library exports nothing at all" >&2; exit 1; }
if [ "${4:-}" = --update ]; then cp "$actual" "$lists/exported_members.txt"; fi

status=0
diff "$lists/exported_members.txt" "$actual" >&2 || {
  echo "The exports of $library differ from exported_members.txt (< listed, > exported)." >&2
  status=1
}
owners "$actual" | diff "$lists/exported_names.txt" - >&2 || {
  echo "What $library exports does not belong to the names of exported_names.txt (< listed, > exported)." >&2
  status=1
}
exit $status
