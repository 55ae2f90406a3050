#!/usr/bin/env bash
# Pictures of every page of the product as three devices show it, and an index.html that puts
# them side by side under each page's name:
#   tools/gallery.sh DIR [BUILD_DIR]
# The simulated Settings app opens every row of the product's root page and of the pages
# below it (alerts included) and draws each screen (a Face ID iPhone on iOS 16, a Touch ID
# iPhone on iOS 14, an iPad on iOS 15). Build first (tools/build.sh).
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
out=${1:?usage: tools/gallery.sh DIR [BUILD_DIR]}
build=${2:-$top/build}
host=$build/platform/host/tessarin-settings
if [ ! -x "$host" ]; then
  echo "No simulated Settings app in $build: run tools/build.sh first." >&2
  exit 1
fi
profiles=(iphone-faceid-ios16 iphone-touchid-ios14 ipad-ios15)
mkdir -p "$out"
out=$(cd "$out" && pwd)
start=$(date +%s)
pids=()
for profile in "${profiles[@]}"; do
  rm -rf "${out:?}/$profile"
  mkdir -p "$out/$profile"
  printf 'gallery %s\nquit\n' "$out/$profile" |
    "$host" --profile "$profile" --script - >"$out/$profile/host.log" 2>&1 &
  pids+=($!)
done
status=0
for i in "${!pids[@]}"; do
  if ! wait "${pids[$i]}"; then
    echo "The gallery of ${profiles[$i]} failed; see $out/${profiles[$i]}/host.log" >&2
    status=1
  fi
done

python3 - "$out" "${profiles[@]}" <<'PY'
import html, os, sys
out, profiles = sys.argv[1], sys.argv[2:]
pages, order = {}, []
for profile in profiles:
    manifest = os.path.join(out, profile, "pages.tsv")
    if not os.path.exists(manifest):
        continue
    with open(manifest, encoding="utf-8") as f:
        for line in f:
            file, _, name = line.rstrip("\n").partition("\t")
            if not name:
                continue
            if name not in pages:
                pages[name] = {}
                order.append(name)
            pages[name].setdefault(profile, f"{profile}/{file}")
rows = []
for name in order:
    cells = []
    for profile in profiles:
        picture = pages[name].get(profile)
        cells.append(f'<td><a href="{picture}"><img src="{picture}" loading="lazy" alt=""></a></td>'
                     if picture else '<td class="none">(not on this device)</td>')
    rows.append(f'<tr><th colspan="{len(profiles)}">{html.escape(name)}</th></tr><tr>{"".join(cells)}</tr>')
heads = "".join(f"<td class=device>{html.escape(p)}</td>" for p in profiles)
with open(os.path.join(out, "index.html"), "w", encoding="utf-8") as f:
    f.write(f"""<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>Tessarin pages</title>
<style>
body {{ font-family: sans-serif; margin: 16px; }}
table {{ border-collapse: collapse; }}
th {{ text-align: left; padding: 18px 4px 6px; font-size: 15px; }}
td {{ vertical-align: top; padding: 4px 12px 4px 4px; }}
td.device {{ font-weight: bold; }}
td.none {{ color: #888; width: 280px; }}
img {{ width: 280px; border: 1px solid #ccc; border-radius: 8px; }}
</style></head><body>
<h1>Tessarin: every page</h1>
<p>{len(order)} pages. Each picture is the simulated Settings app's screen at the device's size and scale.</p>
<table><tr>{heads}</tr>
{chr(10).join(rows)}
</table></body></html>
""")
PY
for profile in "${profiles[@]}"; do
  count=$(grep -c . "$out/$profile/pages.tsv" 2>/dev/null || true)
  echo "$profile: ${count:-0} pages"
done
echo "Gallery: $out/index.html ($(($(date +%s) - start)) s)"
exit $status
