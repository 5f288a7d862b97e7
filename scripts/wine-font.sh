#!/usr/bin/env bash
# Gives the Wine home that WINEPREFIX names a font for the windows' texts in a language: wine-font.sh LANGUAGE-CODE
# There the toolkit takes one font for all of a text, and none here has every script's letters: what the font lacks
# would be drawn as boxes, and be as wide as those. Codes without a font of their own get one of Latin and Arabic
# letters.
set -euo pipefail
key='HKCU\Software\Wine\Fonts\Replacements'
case $1 in
2052 | 1041) font='WenQuanYi Micro Hei' ;;
*) font='DejaVu Sans' ;;
esac
# Tahoma is what Windows' own windows are written in, and not there.
wine reg add "$key" /v Tahoma /d "$font" /f >/dev/null
