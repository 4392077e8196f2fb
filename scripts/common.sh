# Shared by the README's commands: Debian packages the build needs, and the configure step.
XRVELL_PACKAGES=(cmake ninja-build g++ binutils libgtest-dev libgmock-dev libbenchmark-dev
                 clang libclang-rt-14-dev valgrind)

xrvell_missing_packages() {
    local missing=() package
    for package in "${XRVELL_PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
            missing+=("$package")
    done
    echo "${missing[@]}"
}

# Installs what is missing when run as root, in view; otherwise says exactly what to run as root,
# which need not be through sudo.
xrvell_ensure_packages() {
    local missing
    missing=$(xrvell_missing_packages)
    [ -z "$missing" ] && return 0
    if [ "$(id -u)" = 0 ]; then
        echo "Installing Debian packages: $missing" >&2
        apt-get update >&2 && DEBIAN_FRONTEND=noninteractive apt-get install -y $missing >&2
    else
        echo "Missing Debian packages. Run as root:" >&2
        echo "  apt-get install -y $missing" >&2
        exit 1
    fi
}

# xrvell_build BUILD_DIR [cmake options...]
xrvell_build() {
    local build=$1
    shift
    cmake -S "$XRVELL_ROOT" -B "$build" -G Ninja "$@" >/dev/null
    cmake --build "$build" -j "$(nproc)"
    ln -sf "$build/compile_commands.json" "$XRVELL_ROOT/compile_commands.json"
}
