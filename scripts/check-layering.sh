#!/usr/bin/env bash
# Checks that includes run down the layers only. Lists file:line of every include of a
# layer the file may not use and exits 1 when there is one. tests/, fuzz/, bench/ and
# tools/ may use every layer and are not checked.
set -euo pipefail
cd "$(dirname "$0")/.."

# Layers bottom-up. commands and events stand side by side: neither includes the other.
declare -A rank=([driver]=0 [config]=1 [commands]=2 [events]=2 [emulator]=3 [service]=4
                 [dialogs]=5 [app]=6 [cli]=6)

# Layers narrower than "everything below": the emulator is the drivers' side and knows
# only the channel; the windows reach the plain C++ half through service/ alone.
declare -A only=([emulator]="driver" [dialogs]="service" [app]="service dialogs"
                 [cli]="service")

# Single headers a layer may include from a layer it may not otherwise use: skcli picks
# its backend exactly as the console does.
declare -A header_extra=([cli]="app/sk_backend.h")

# Files allowed more than their layer.
declare -A extra=(
    [app/sk_backend.cpp]="driver emulator" # installs the platform
)

may_include() { # file layer target header
    local file=$1 layer=$2 target=$3 header=$4
    [[ $target == "$layer" || " ${extra[$file]:-} " == *" $target "* ]] && return 0
    [[ " ${header_extra[$layer]:-} " == *" $header "* ]] && return 0
    if [[ -n ${only[$layer]:-} ]]; then
        [[ " ${only[$layer]} " == *" $target "* ]]
    else
        ((rank[$target] < rank[$layer]))
    fi
}

failed=0
while IFS= read -r file; do
    layer=${file%%/*}
    [[ -f $file && -n ${rank[$layer]:-} ]] || continue
    while IFS=: read -r line target header; do
        [[ -n ${rank[$target]:-} ]] || continue
        if ! may_include "$file" "$layer" "$target" "$header"; then
            echo "$file:$line: $layer/ may not include $target/"
            failed=1
        fi
    done < <(grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[a-z_]+/' "$file" |
             sed -E 's|^([0-9]+):[^"]*"(([a-z_]+)/[^"]*)".*|\1:\3:\2|')
done < <(git ls-files -- '*.cpp' '*.h' ':(exclude)tests' ':(exclude)fuzz' ':(exclude)bench' \
                         ':(exclude)tools')

if ((failed)); then
    echo "layering: includes above reach a layer the file may not use" >&2
fi
exit "$failed"
