# Shared by the scripts in this folder; POSIX sh, to be read with `.`:
#
#   root=$(cd "$(dirname "$0")/.." && pwd)
#   . "$root/scripts/lib.sh"
#   install_packages cmake ninja-build g++

# Says why the script can not go on, and ends it.
die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# Runs a command as the administrator.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    return 1
  fi
}

# Prints those of the named Debian packages that are not installed, on one line.
missing_packages() {
  missing=
  for package in "$@"; do
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) || state=
    [ "$state" = installed ] || missing="$missing $package"
  done
  printf '%s' "${missing# }"
}

# Installs those of the named Debian packages that are missing; does nothing, quickly, when all are there.
# Elsewhere it says what is needed: the caller's commands may still be there under another package's name, so
# set PLATECONFIG_NO_INSTALL=1 to go on without looking.
install_packages() {
  [ -z "${PLATECONFIG_NO_INSTALL:-}" ] || return 0
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    die "this is no Debian system. Install what these Debian packages hold, then run again with" \
        "PLATECONFIG_NO_INSTALL=1: $*"
  fi
  wanted=$(missing_packages "$@")
  [ -n "$wanted" ] || return 0
  printf 'Installing: %s\n' "$wanted" >&2
  # shellcheck disable=SC2086  # One word per package.
  { as_root apt-get update -qq && as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends $wanted; } >/dev/null ||
    die "these Debian packages are missing and could not be installed (are you root, or in sudo's list?): $wanted"
}
