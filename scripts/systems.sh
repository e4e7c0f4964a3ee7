# shellcheck shell=bash
# Bare Debian systems in chroots, for the scripts that source this file. They run as root, and need debootstrap.
#
# The systems stay in $home: VENDORINFOFILE_SYSTEMS, by default build/systems; remove it to start afresh. Packages come
# from the archive that this machine's apt uses for Debian, or from VENDORINFOFILE_MIRROR.

source=$PWD
home=${VENDORINFOFILE_SYSTEMS:-$PWD/build/systems}
copy=root/VendorInfoFile

fail() { echo "$*" >&2; exit 2; }
[ "$(id -u)" -eq 0 ] || fail "chroot needs root"
command -v debootstrap >/dev/null || fail "debootstrap is missing; Debian has a package of that name"
mkdir -p "$home"

# The archive of this machine's own release.
find_mirror() {
  local codename
  codename=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
  apt-get indextargets --format '$(SITE) $(CODENAME)' 'Created-By: Packages' 'Origin: Debian' |
    awk -v codename="$codename" '$2 == codename && !mirror { mirror = $1 } END { print mirror }'
}
mirror=${VENDORINFOFILE_MIRROR:-$(find_mirror || true)}
[ -n "$mirror" ] || fail "This machine's apt has no Debian archive; name one in VENDORINFOFILE_MIRROR"

# Runs a command in a system. The mounts are in a namespace that ends with the command, however that ends. Names are
# looked up as on this machine at that time.
inside() {
  local root=$1
  shift
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  unshare --mount bash -c 'mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && exec chroot "$0" "$@"' \
    "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 "$@"
}

# Makes a system, unless it is there.
#   make_system SUITE ARCHITECTURE ROOT [PACKAGE,...]
make_system() {
  local suite=$1 architecture=$2 root=$3 packages=${4:-ca-certificates,git}
  [ ! -e "$root/made" ] || return 0
  rm -rf --one-file-system "$root"
  # In a namespace of its own too, because it mounts in the system, and may end before it unmounts.
  unshare --mount debootstrap --variant=minbase --include="$packages" --arch="$architecture" "$suite" "$root" "$mirror"
  apt-config dump | grep -E '^Acquire::https?::Proxy' >"$root/etc/apt/apt.conf.d/proxy" || true
  # Sid's package lists expire, and the archive may have older ones.
  [ "$suite" != sid ] || echo 'Acquire::Check-Valid-Until "false";' >"$root/etc/apt/apt.conf.d/old-lists"
  touch "$root/made"
}

# Updates the system's copy of the repository to what is committed, and keeps its build, so that builds are incremental.
copy_repository() {
  local there=$1/$copy
  git init --quiet "$there"
  git -C "$there" fetch --quiet "$source" HEAD
  git -C "$there" reset --quiet --hard FETCH_HEAD
}
