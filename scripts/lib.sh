# What the commands beside this file share: the packages, how they come here, and the build.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${QUILLANE_BUILD:-$root/build}

# All that building, running and testing needs on Debian 12; the one list of them.  fonts-liberation has the
# metrics of Arial and Times New Roman, in which every page is measured; xvfb stands in for a display; the
# tests read PDF files and documents with poppler-utils and unzip, and print to a cupsd of their own.
packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev fonts-liberation libgtest-dev poppler-utils unzip cups-daemon
  cups-client xvfb xauth)
check_packages=(clang-format clang-tidy)

say() { printf '%s\n' "$*" >&2; }
fail() { say "$*"; exit 1; }

# The names among the arguments that are not installed.
missing_packages() {
  local installed
  # A package that dpkg has never heard of is a failure to it, and to us the very thing looked for.
  installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null | sed -n 's/ installed$//p') || true
  local name
  for name in "$@"; do grep -qxF "$name" <<<"$installed" || printf '%s\n' "$name"; done
}

as_administrator() {
  if [ "$(id -u)" = 0 ]; then env DEBIAN_FRONTEND=noninteractive "$@"
  elif [ -t 0 ]; then sudo env DEBIAN_FRONTEND=noninteractive "$@"
  else sudo -n env DEBIAN_FRONTEND=noninteractive "$@"; fi
}

# Installs what is missing of the arguments; quiet when nothing is.
need() {
  command -v dpkg-query >/dev/null || { say "This is no Debian system: the tools are taken as they are."; return; }
  local missing
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  local by_hand="Please have an administrator run: apt-get install ${missing[*]}"
  [ "$(id -u)" = 0 ] || command -v sudo >/dev/null ||
    fail "Missing here: ${missing[*]}. You are not root and there is no sudo. $by_hand"
  say "Installing ${missing[*]} ..."
  as_administrator apt-get -qq update >&2 || fail "The list of packages could not be fetched. $by_hand"
  as_administrator apt-get -qq -y --no-install-recommends install "${missing[@]}" >"$root/.apt.log" 2>&1 ||
    { tail -n 20 "$root/.apt.log" >&2; fail "The packages could not be installed. $by_hand"; }
  rm -f "$root/.apt.log"
}

# configure FOLDER [CMAKE OPTION...]: once a folder; the build notices changed rules by itself.
configure() {
  local folder=$1
  shift
  [ -f "$folder/build.ninja" ] && return
  say "Configuring $folder ..."
  cmake -S "$root" -B "$folder" -G Ninja "$@" >"$folder.log" 2>&1 ||
    { cat "$folder.log" >&2; rm -rf "$folder"; fail "CMake could not set up the build."; }
  rm -f "$folder.log"
}

# compile FOLDER TARGET...: one line of progress on a terminal, silence otherwise unless something fails.
compile() {
  local folder=$1
  shift
  if [ -t 1 ]; then ninja -C "$folder" "$@" | sed -u '/no work to do\|Entering directory/d'
  else
    [ -f "$folder/.ninja_log" ] || say "Building; the first time takes some minutes ..."
    local log
    log=$(ninja -C "$folder" --quiet "$@" 2>&1) || { printf '%s\n' "$log" >&2; fail "The build failed."; }
  fi
}

# From here on windows are drawn in memory only.
without_display() {
  export QT_QPA_PLATFORM=offscreen
  [ -z "${XDG_RUNTIME_DIR:-}" ] || return 0
  export XDG_RUNTIME_DIR=$build/runtime
  mkdir -p -m 700 "$XDG_RUNTIME_DIR"
}
