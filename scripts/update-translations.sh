#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the .ts files of the program, of the demo and of the host kit up to date
# with the texts of their sources and scenarios. A text that is gone stays, marked "vanished",
# in case it comes back.
#
#   scripts/update-translations.sh           rewrites them; new texts are marked
#                                            "unfinished" until they are translated
#   scripts/update-translations.sh --check   changes nothing; fails, and names the
#                                            texts, when one has no German
set -eu
cd "$(dirname "$0")/.."
PATH=/usr/lib/qt5/bin:$PATH # Debian keeps Qt 5's own tools there

trial=$(mktemp -d)
trap 'rm -rf "$trial"' EXIT
if [ "${1:-}" = --check ]; then
  cp translations/*.ts demo/translations/*.ts "$trial"
  ours=$trial demo=$trial
else
  ours=translations demo=demo/translations
fi

# A scenario that lupdate cannot read would lose all its texts: it says so, but
# writes the file and succeeds. So it reads the scenarios for nothing first.
complaints=$(lupdate -silent demo/scenarios -ts "$trial/trial.ts" 2>&1) || true
if [ -n "$complaints" ]; then
  printf '%s\n' "$complaints" "$0: nothing was changed" >&2
  exit 1
fi

# update FOLDER ... -ts FILE ...: what lupdate says of a class is not about texts.
update() { lupdate -silent -I . -extensions cpp,h,js -locations none "$@" 2>/dev/null; }

# German is complete; the others have what a learner sees.
update app editor overlay tutorial -ts "$ours/tutorial_de.ts"
update overlay -ts "$ours"/tutorial_{es,fr,it,ja,ko,pl,pt,zh_CN,zh_TW}.ts
update demo hostkit -ts "$demo"/tutorial-demo_*.ts

[ "${1:-}" = --check ] || exit 0
result=0
for file in "$trial"/*_*.ts; do
  # The last <source> before each translation that is missing.
  missing=$(awk '/<source>/ { source = $0 } /type="unfinished"/ { print source }' "$file")
  if [ -n "$missing" ]; then
    printf '%s lacks translations of:\n%s\n' "$(basename "$file")" "$missing" >&2
    result=1
  fi
done
[ $result = 0 ] || echo "scripts/update-translations.sh adds these texts to the files." >&2
exit $result
