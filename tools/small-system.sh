# What the scripts share that keep a small Debian system of their own, in the user's cache folder: it is made once, and
# again when the script changes. A script says what is in it by answering `--make FOLDER MIRROR SUITE`, as root; the
# folder gets its name when it is whole.
# shellcheck shell=bash disable=SC2034

cache=${XDG_CACHE_HOME:-$HOME/.cache}/kelcontrols8
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo -n)

fail() {
    echo "$1" >&2
    exit 1
}

# The folder of a script's system.
system_of() { echo "$cache/$(basename "$1")-$(cat "$1" tools/small-system.sh | sha1sum | cut -c 1-12)"; }

# Without what only programs that install further ones want.
tidy() { rm -rf "$1"/var/cache/apt/archives/*.deb "$1"/var/lib/apt/lists/* "$1"/usr/share/{doc,man,locale}; }

# Programs inside see this machine's processes and devices, and the folders that are named.
show_inside() {
    local root=$1 folder
    shift
    for folder in /proc /dev "$@"; do
        mkdir -p "$root$folder"
        mount --rbind "$folder" "$root$folder"
    done
}

# Makes sure that a script's system is there; else fails, and says why last. In a shell of its own, with which its lock
# ends: programs that stay on after a command inside would keep it.
prepare() (
    script=$1
    name=$(basename "$script")
    root=$(system_of "$script")
    log=$cache/$name.log
    "${as_root[@]}" unshare --mount true 2>/dev/null || fail "this user may not mount a small system beside this one"
    mkdir -p "$cache"
    exec 9>"$cache/$name.lock"
    flock 9
    [ ! -d "$root" ] || return 0
    # shellcheck source=/dev/null
    suite=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
    # shellcheck disable=SC2016
    mirror=$(apt-get indextargets --format '$(RELEASE) $(COMPONENT) $(REPO_URI)' 2>/dev/null |
        sed -n "s/^$suite main //p" | head -n 1)
    [ -n "$mirror" ] || fail "this machine names no mirror of packages for it"
    tools/setup-debian debootstrap || fail "there is no debootstrap"
    "${as_root[@]}" rm -rf "$cache/$name"-*
    if ! "${as_root[@]}" "$script" --make "$root.new" "$mirror" "$suite" >"$log" 2>&1; then
        fail "the small system for it could not be made: $(grep -v '^$' "$log" | tail -n 1)"
    fi
    "${as_root[@]}" mv "$root.new" "$root"
)
