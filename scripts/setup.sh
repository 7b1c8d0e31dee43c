# SPDX-License-Identifier: MIT
# Sourced by run and test: brings a fresh Debian 12 machine to where the project builds.
# Functions only; the caller sets STEP so that a failure can be named.

# Package, and what it is for. A machine that has them all is left alone.
BUILD_PACKAGES="
g++:the_compiler
cmake:the_build
ninja-build:the_build
qtbase5-dev:containers,_dialogs,_pictures_(Qt_5.15)
libassimp-dev:mesh_files
libembree-dev:closest_points_and_picking
libgl-dev:drawing_the_overlay
zlib1g-dev:compression_in_scene_files
fonts-dejavu-core:text_in_pictures_and_dialogs
librsvg2-bin:icons_from_their_SVG_sources
qttools5-dev:translations,_in_CMake
qttools5-dev-tools:translations
"
TEST_PACKAGES="
libgtest-dev:the_tests
libgeos-dev:an_independent_polygonizer_to_test_against
xvfb:a_display_for_the_tests_of_the_desktop
xauth:a_display_for_the_tests_of_the_desktop
libxcb1-dev:events_as_a_user_sends_them,_in_a_test
libgl1-mesa-dri:drawing_without_a_graphics_card
"
CG_PACKAGES="
libcg:shader_programs_of_the_overlay
libcggl:shader_programs_of_the_overlay
nvidia-cg-dev:shader_programs_of_the_overlay
nvidia-cg-toolkit:the_compiler_of_the_shader_programs
"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints those of the listed packages that are missing, one a line, with what each is for.
missing_of() {
    local entry
    for entry in $1; do
        is_installed "${entry%%:*}" || echo "$entry"
    done
}

announce() {
    local entry
    for entry in $1; do
        printf '  %-20s %s\n' "${entry%%:*}" "$(echo "${entry#*:}" | tr _ ' ')"
    done
}

install_packages() {
    local names entry
    names=""
    for entry in $1; do
        names="$names ${entry%%:*}"
    done
    # shellcheck disable=SC2086  # a list of words
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $names
}

# The Cg compiler and runtime are in Debian's non-free section. The section is added for the mirror
# that the machine uses already, as a file of its own that can be deleted again.
add_non_free() {
    local codename uri file
    codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
    uri=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' \
              'Created-By: Packages' 2>/dev/null |
          awk -v c="$codename" '$2 == c && $3 == "main" && !found++ { print $1 }')
    if [ -z "$uri" ] || [ -z "$codename" ]; then
        return 1
    fi
    file=/etc/apt/sources.list.d/quillmesh-non-free.sources
    echo "Adding Debian's non-free section ($file), where Cg is; --no-cg leaves the sources alone."
    printf 'Types: deb\nURIs: %s\nSuites: %s\nComponents: non-free\nSigned-By: %s\n' \
        "$uri" "$codename" /usr/share/keyrings/debian-archive-keyring.gpg |
        as_root tee "$file" >/dev/null
    as_root apt-get update -q
}

has_candidate() {
    apt-cache policy "$1" 2>/dev/null | awk '/Candidate: [0-9]/ { found = 1 } END { exit !found }'
}

# Without Cg the overlay draws without its programs; nothing else needs it.
setup_cg() {
    local missing
    missing=$(missing_of "$CG_PACKAGES")
    if [ -z "$missing" ]; then
        return 0
    fi
    STEP="setting up Cg"
    if ! has_candidate libcg; then
        add_non_free || true
    fi
    if ! has_candidate libcg; then
        echo "Cg is not to be had from this machine's package sources; going on without it."
        return 0
    fi
    echo "Installing Cg:"
    announce "$missing"
    install_packages "$missing" || echo "Cg could not be installed; going on without it."
}

# setup_machine PACKAGES WITH_CG(yes|no)
setup_machine() {
    local missing
    if ! command -v apt-get >/dev/null; then
        echo "This is no Debian machine: install the packages that README.md lists yourself."
        return 0
    fi
    STEP="installing packages"
    missing=$(missing_of "$1")
    if [ -n "$missing" ] || { [ "$2" = yes ] && [ -n "$(missing_of "$CG_PACKAGES")" ]; }; then
        echo "Reading the lists of packages."
        as_root apt-get update -q || echo "The lists could not be read anew; trying with old ones."
    fi
    if [ -n "$missing" ]; then
        echo "Installing what the project needs:"
        announce "$missing"
        install_packages "$missing"
    fi
    if [ "$2" = yes ]; then
        setup_cg
    fi
}

# build_release: configures and builds build/release; says only what went wrong.
build_release() {
    local log
    STEP="building (the log is build/release.log)"
    mkdir -p build
    log=build/release.log
    echo "Building build/release (first time: some minutes)."
    if ! { cmake --preset release && cmake --build --preset release; } >"$log" 2>&1; then
        tail -n 40 "$log"
        return 1
    fi
}

say_what_failed() {
    echo
    echo "$(basename "$0") failed while ${STEP:-starting}."
    echo "What to do: read the lines above; README.md has the packages and the commands by hand."
}
