# SPDX-License-Identifier: GPL-3.0-or-later
# What ./run, ./test and bench/run share. Sourced from the root of the tree.
set -uo pipefail
export LC_ALL=C.UTF-8

# vaihe <what is done> <command...>: runs the command with its output in build/logs, tells how long it took,
# and shows the end of the output when it fails. Returns the command's status.
vaihe() {
  local mita=$1 alku=$SECONDS loki tila=0
  shift
  mkdir -p build/logs
  loki="build/logs/$(tr -cs 'A-Za-z0-9\n' '-' <<<"$mita").log"
  printf '%-72s' "$mita ..."
  "$@" </dev/null >"$loki" 2>&1 || tila=$?
  if ((tila == 0)); then
    printf 'done, %d s\n' $((SECONDS - alku))
  else
    printf 'FAILED, %d s\n' $((SECONDS - alku))
    tail -n 60 "$loki" | sed 's/^/    /'
    [[ ! -s $loki ]] || echo "    (the whole output: $loki)"
  fi
  return "$tila"
}

# Names of the packages of packages.txt that are not installed.
puuttuvat_paketit() {
  grep -v '^#' packages.txt | while read -r paketti; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$paketti" 2>/dev/null) == installed ]] || echo "$paketti"
  done
}

# Installs what is missing, and nothing when nothing is.
asenna_paketit() {
  local paketit sudo=()
  mapfile -t paketit < <(puuttuvat_paketit)
  ((${#paketit[@]})) || return 0
  echo "Missing Debian packages: ${paketit[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null || {
      echo "They cannot be installed without root. As root: apt-get install ${paketit[*]}"
      return 1
    }
    sudo=(sudo)
    sudo -v || return 1  # asks the password here, where it can be seen
  fi
  local apt=("${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -q -o DPkg::Lock::Timeout=600)
  vaihe "Refreshing the package lists" "${apt[@]}" update  # old lists may do, so a failure here is not the end
  vaihe "Installing the missing packages" "${apt[@]}" install --no-install-recommends "${paketit[@]}"
}

# konfiguroi_ja_rakenna <preset> [target...]: without targets the whole tree
konfiguroi_ja_rakenna() {
  cmake --preset "$1" && cmake --build --preset "$1" --parallel "$(nproc)" ${2:+--target "${@:2}"}
}

# rakenna <preset> <what it is> [target...]
rakenna() {
  vaihe "Building $2" konfiguroi_ja_rakenna "$1" "${@:3}"
}
