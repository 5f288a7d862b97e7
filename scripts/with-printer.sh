#!/usr/bin/env bash
# Runs a command with a print server of its own, whose default printer "Mindloft-PDF" has the papers of a PDF
# printer and writes what it is given, as PostScript, to a file; ends the server with it. Nothing of the machine's
# printing is used or changed. with-printer.sh COMMAND [ARGUMENT...]; for the command CUPS_SERVER names the server, and
# MINDLOFT_PRINTED the file of the last print job.
set -euo pipefail
folder=$(mktemp -d)
server=
finish() {
  if [ -n "$server" ]; then kill "$server" 2>/dev/null || true; wait "$server" 2>/dev/null || true; fi
  rm -rf "$folder"
}
trap finish EXIT
# The server runs its filters as another user when it is root's.
chmod 755 "$folder"
mkdir -p "$folder"/{root/ppd,spool/tmp,cache,state,printed}
chmod 777 "$folder"/{spool/tmp,printed}
filters=
[ "$(id -u)" = 0 ] || filters="User $(id -un)
Group $(id -gn)"
export CUPS_SERVER=$folder/socket MINDLOFT_PRINTED=$folder/printed/last.ps
cat >"$folder/cups-files.conf" <<END
ServerRoot $folder/root
RequestRoot $folder/spool
TempDir $folder/spool/tmp
CacheDir $folder/cache
StateDir $folder/state
AccessLog $folder/access_log
ErrorLog $folder/error_log
PageLog $folder/page_log
SystemGroup $(id -gn)
$filters
FileDevice Yes
ConfigFilePerm 0644
END
cat >"$folder/cupsd.conf" <<END
Listen $CUPS_SERVER
Browsing Off
WebInterface No
DefaultAuthType None
LogLevel debug
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
  </Limit>
</Policy>
END
cupsd=$(command -v cupsd || echo /usr/sbin/cupsd)
"$cupsd" -f -c "$folder/cupsd.conf" -s "$folder/cups-files.conf" >"$folder/log" 2>&1 &
server=$!
for _ in $(seq 200); do
  LC_ALL=C lpstat -r 2>/dev/null | grep -q 'is running' && break
  kill -0 "$server" 2>/dev/null || { cat "$folder/log" "$folder/error_log" >&2; echo "no print server could be started" >&2; exit 1; }
  sleep 0.05
done
lpadmin() { command "$(command -v lpadmin || echo /usr/sbin/lpadmin)" "$@" 2>>"$folder/log" || { cat "$folder/log" "$folder/error_log" >&2; exit 1; }; }
lpadmin -p Mindloft-PDF -E -v "file://$MINDLOFT_PRINTED" -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd
lpadmin -d Mindloft-PDF
"$@"
