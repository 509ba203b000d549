# Installs what a fresh Debian machine lacks, and says so in one line. Sourced by ./run, ./test, ./bench and the tools.

RunPackages="build-essential cmake ninja-build perl-base libgl-dev qt6-base-dev qt6-base-dev-tools qt6-svg-dev
  libqt6svg6 libcanberra-dev fonts-liberation fonts-dejavu-core"
HeadlessPackages="xvfb openbox xdotool wmctrl imagemagick"
LogicPackages="libgtest-dev librapidcheck-dev libical-dev pkg-config python3 locales tidy"
StylePackages="clang-format git python3"
# chromium and poppler-utils print the exported pages and look at their sheets.
TestPackages="$HeadlessPackages $LogicPackages $StylePackages clang clang-tidy libclang-rt-14-dev trayer faketime
  x11-utils dbus-daemon qt6-base-private-dev chromium poppler-utils"
BarePackages="debootstrap git"
BenchPackages="libgtest-dev librapidcheck-dev libbenchmark-dev libical-dev libkf5calendarcore-dev pkg-config"

AsRoot() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs those of the named packages that are missing; touches nothing else.
Install() {
    local missing=()
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -q '^installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing ${missing[*]}"
    AsRoot apt-get update -qq
    AsRoot env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        -o DPkg::Lock::Timeout=300 "${missing[@]}" >/dev/null
}
