# Sourced by ./run and ./check: makes sure that what they need is installed, and says so before anything is changed.

JED_BUILD_PACKAGES=(g++ cmake ninja-build ccache python3 qtbase5-dev qtscript5-dev
                    qttools5-dev-tools libxml2-dev fonts-dejavu-core)
JED_CHECK_PACKAGES=(libbenchmark-dev qtdeclarative5-dev clang clang-format)

# jed_prerequisites <install: yes|no> <package>...
# Installs the packages that are missing: at once as root, after one question with sudo, never with "no".
jed_prerequisites() {
    local install=$1 missing=() package
    shift
    if ! command -v dpkg-query >/dev/null 2>&1 || ! command -v apt-get >/dev/null 2>&1; then
        echo "This is no Debian system, so nothing is installed here. Needed are the counterparts of:"
        echo "  $*"
        echo "With them in place, the whole build and all tests are: cmake --workflow --preset dev"
        command -v cmake >/dev/null 2>&1 && command -v ninja >/dev/null 2>&1 && return 0
        return 1
    fi
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local command="apt-get install -y --no-install-recommends ${missing[*]}"
    echo "Packages needed: ${missing[*]}"
    echo "Command:         $command"
    if [ "$install" = no ]; then
        echo "Not installed, as asked (--no-install). Install them and start again."
        return 1
    fi
    if [ "$(id -u)" -eq 0 ]; then
        jed_apt "" "$command"
    elif command -v sudo >/dev/null 2>&1; then
        local answer
        read -r -p "Run it with sudo now? [y/N] " answer || answer=n
        case $answer in
            [yY]*) jed_apt sudo "$command" ;;
            *) echo "Nothing was installed."; return 1 ;;
        esac
    else
        echo "Run the command as root, then start again."
        return 1
    fi
}

# jed_apt <sudo or empty> <command>: refreshes the package lists, then installs without questions.
jed_apt() {
    local log
    mkdir -p build
    log=build/install.log
    if ! { $1 apt-get update && $1 env DEBIAN_FRONTEND=noninteractive $2; } >"$log" 2>&1; then
        tail -n 20 "$log"
        echo "Installing failed; the whole output is in $log."
        return 1
    fi
    echo "Installed."
}
