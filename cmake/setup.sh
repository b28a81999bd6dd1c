# What ./run and ./test share: installs what is missing, builds a preset quietly.

run_packages=(g++ cmake ninja-build pkg-config libcli11-dev nlohmann-json3-dev libsqlite3-dev unixodbc-dev)
window_packages=(qt6-base-dev)
test_packages=("${run_packages[@]}" "${window_packages[@]}" libgtest-dev postgresql odbc-postgresql libsqliteodbc
  xvfb xdotool)
# For ./test --all.
guard_packages=(libbenchmark-dev clang clang-tidy clang-format g++-mingw-w64-x86-64-posix)

say() { printf '%s\n' "$*" >&2; }

# install_packages PACKAGE...: those that are not there, by apt, as root or with sudo.
install_packages() {
  local missing=() package
  for package in "$@"; do
    [[ "$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null)" == 'install ok installed' ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  say "Installing ${missing[*]} ..."
  local as_root=()
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      say "These packages are missing, and there is no sudo to install them: ${missing[*]}"
      return 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq >&2 &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: prints what the build says only if it fails.
build() {
  local preset=$1 output
  shift
  output=$(mktemp)
  if [[ ! -f build/$preset/build.ninja ]]; then
    say "Configuring build/$preset ..."
    if ! cmake --preset "$preset" "${configure_options[@]}" >"$output" 2>&1; then
      cat "$output" >&2
      rm -f "$output" "build/$preset/CMakeCache.txt"
      return 1
    fi
  fi
  [[ -t 2 ]] && say "Building build/$preset ..."
  if ! cmake --build --preset "$preset" --target "${@:-all}" >"$output" 2>&1; then
    cat "$output" >&2
    rm -f "$output"
    return 1
  fi
  rm -f "$output"
}
