# Packages that Durvela needs on Debian 12. Sourced by every script.

run_packages=(cmake g++ ninja-build qt6-base-dev qt6-wayland libjpeg62-turbo-dev libcctz-dev tzdata
  libcli11-dev nlohmann-json3-dev fonts-noto-core fonts-lohit-deva fonts-lohit-mlym fonts-lohit-knda)
display_packages=(xvfb xauth)
test_packages=(libgtest-dev locales tzdata appstream desktop-file-utils xvfb dbus-daemon at-spi2-core
  python3-gi gir1.2-atspi-2.0)
bench_packages=(libbenchmark-dev libhpdf-dev libnova-dev libsqlite3-dev libswe-dev)
package_packages=(dpkg-dev file lintian)
format_packages=(clang-format-14)
fuzz_packages=(clang-14 libclang-rt-14-dev)

# install_missing PACKAGE...: installs those that are missing, in one apt-get call.
install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are missing, and only root can install them: ${missing[*]}" >&2
      return 1
    }
    root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# build PRESET [OPTION...]: configures and builds, quietly unless something fails.
build() {
  local preset=$1
  shift
  echo "Building ($preset)"
  mkdir -p build
  local log=build/$preset.log
  { cmake --preset "$preset" && cmake --build --preset "$preset" "$@"; } >"$log" 2>&1 || {
    tail -n 60 "$log"
    echo "The build failed; see $log." >&2
    return 1
  }
}
