# Sourced by the scripts beside it: installs the Debian packages a command needs when they
# are missing, so that each command works on a fresh Debian 12 machine by itself.
need_packages() {
  local missing=() p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=
  [ "$(id -u)" -ne 0 ] && sudo=sudo
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# The toolchain every build needs.
BUILD_PACKAGES=(g++ cmake ninja-build pkg-config binutils libpng-dev)
