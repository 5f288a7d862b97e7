#!/usr/bin/env bash
# shellcheck disable=SC2154 # what the sourcing script sets
# A person in front of the console, for tests that run the programs themselves: starts them, looks at the window in
# front and at the directory file, presses keys and moves the mouse. To be sourced; `programs` is the folder of the
# programs, `folder` one of the test's own.
# Nothing waits for a time: a key is pressed once the window that it is for has the keyboard. The limit is reached only
# by a test that fails.
limit=40
directory=$folder/day.directory
console=
step=

if [ -e "$programs/mindloft-console.exe" ]; then
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree=;mshtml=;winemenubuilder.exe=}"
  run_program() { wine "$programs/$1.exe" "${@:2}"; }
  start_program() { exec wine "$programs/$1.exe" "${@:2}"; }
  named_directory=$(winepath -w "$directory")
  next_page=ctrl+Tab
  # Wine loses keys that come while the console works, most of all while a window comes or goes; a modifier that goes
  # up then stays down. The console has come to rest when it takes no processor time.
  ticks() { cut -d ' ' -f 14,15 "/proc/$console/stat" 2>/dev/null || true; }
  is_at_rest() {
    local before
    before=$(ticks)
    sleep 0.25
    [ "$(ticks)" = "$before" ]
  }
  come_to_rest() {
    [ -n "$console" ] || return 0
    wait_until "the console to come to rest" is_at_rest
    xdotool key alt+Control_L
  }
  # After a window that was there for a moment only, none may have the keyboard under Wine: a person takes the next.
  take_if_none() { [ -n "$(front)" ] || xdotool search --onlyvisible --name "^$1\$" windowactivate >/dev/null 2>&1 || true; }
  key='HKCU\Software\Ordwell\Mindloft'
  # The settings are the user's: they are put back.
  keep_settings() {
    wine reg export "$key" "$folder/settings.reg" /y >/dev/null 2>&1 || true
    wine reg delete "$key" /f >/dev/null 2>&1 || true
  }
  restore_settings() {
    wine reg delete "$key" /f >/dev/null 2>&1 || true
    [ ! -e "$folder/settings.reg" ] || wine reg import "$folder/settings.reg" >/dev/null 2>&1 || true
  }
else
  run_program() { "$programs/$1" "${@:2}"; }
  start_program() { exec "$programs/$1" "${@:2}"; }
  named_directory=$directory
  next_page=ctrl+Next
  come_to_rest() { :; }
  take_if_none() { :; }
  keep_settings() {
    for name in CONFIG_HOME STATE_HOME DATA_HOME RUNTIME_DIR; do
      mkdir -m 700 "$folder/$name"
      export "XDG_$name=$folder/$name"
    done
  }
  restore_settings() { :; }
fi

begin() {
  step=$1
  echo "- $step"
}

fail() {
  local picture=$PWD/endtoend-failure.png
  import -window root "$picture" || picture="none"
  {
    echo "FAILED at: $step"
    echo "  $1"
    echo "  window in front: $(front)"
    echo "  picture: $picture"
    [ ! -s "$folder/messages" ] || { echo "  messages of the console:" && tail -n 60 "$folder/messages"; }
  } >&2
  exit 1
}

# wait_until WHAT COMMAND [ARGUMENT...]
wait_until() {
  local what=$1 end=$((SECONDS + limit))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || fail "waited in vain for $what"
    [ -z "$console" ] || [ "$1" = has_ended ] || ! has_ended || fail "the console ended while waiting for $what"
    sleep 0.02
  done
}

# The title of the window that the window manager has in front and that gets the keys.
front() {
  local window focus
  window=$(xdotool getactivewindow 2>/dev/null) || return 0
  focus=$(xdotool getwindowfocus 2>/dev/null) || return 0
  [ "$window" != "$focus" ] || xdotool getwindowname "$window" 2>/dev/null || true
}
is_front() {
  [ "$(front)" != "$1" ] || return 0
  take_if_none "$1"
  return 1
}
see() {
  wait_until "the window \"$1\"" is_front "$1"
  come_to_rest
}
see_main() { see "Mindloft Administration"; }

# For what a window tells without another one: it grows by the message.
height() { xdotool getactivewindow getwindowgeometry --shell 2>/dev/null | sed -n 's/^HEIGHT=//p'; }
remember_height() { height_before=$(height); }
has_grown() { [ "$(height)" -gt "$height_before" ]; }

# A person looks at what a key has done before the next one.
press() {
  local key
  for key in "$@"; do
    xdotool key "$key"
    come_to_rest
  done
}
write() { xdotool type -- "$1"; }
# times COUNT KEY
times() { for _ in $(seq "$1"); do press "$2"; done; }
# Into the window in front, at a place in hundredths of its width and height: click_at X Y [BUTTON]
click_at() {
  local window
  window=$(xdotool getactivewindow)
  eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
  xdotool mousemove --window "$window" $((WIDTH * $1 / 100)) $((HEIGHT * $2 / 100)) click "${3:-1}"
}

# A copy is asked: the console's own locks are left alone, whatever system they belong to.
ask_file() {
  local copy=$folder/copy
  rm -rf "$copy" && mkdir "$copy"
  cp "$directory" "$directory-wal" "$copy" 2>/dev/null || cp "$directory" "$copy"
  sqlite3 -batch -noheader "$copy/day.directory" "$1" 2>&1 || true
}
holds() { [ "$(ask_file "$1")" = "$2" ]; }
# expect_stored QUERY RESULT
expect_stored() {
  wait_until "the file to answer \"$2\" to \"$1\"" holds "$1" "$2" || fail "it answers \"$(ask_file "$1")\""
}
# A window that tells the progress of a change is there, seen or not, before the change is stored.
shows_no_progress() { ! xdotool search --name '^Please wait$' >/dev/null 2>&1; }
# expect_done QUERY RESULT: stored, and the main window ready for the next command.
expect_done() {
  expect_stored "$@"
  wait_until "the end of the progress" shows_no_progress
  see_main
}
changes() { ask_file "SELECT count(*) FROM journal WHERE action <> 'login'"; }

# expect_info WHAT COUNT: as the directory's own tool tells.
expect_info() {
  local told
  told=$(run_program mindloft-directory info "$named_directory" | tr -d '\r' | sed -n "s/^$1 *//p")
  [ "$told" = "$2" ] || fail "mindloft-directory tells \"$told\" $1, expected $2"
}
expect_sound() {
  run_program mindloft-directory check "$named_directory" >"$folder/check" 2>&1 || fail "the directory is damaged: $(cat "$folder/check")"
}

has_ended() { ! kill -0 "$console" 2>/dev/null; }
start_console() {
  (start_program mindloft-console "--directory=$named_directory") >"$folder/messages" 2>&1 &
  console=$!
  see "Mindloft Administration – Log in"
}
# Gives the tree the keyboard by a click below its nodes. While a window comes or goes some desktops move the keyboard
# more than once, and a key that comes in between is lost; what comes after a click is not.
to_work() {
  click_at 10 60
  come_to_rest
}
# log_in NAME PASSWORD
log_in() {
  start_console
  write "$1"
  press Tab
  write "$2"
  press Return
  see_main
}
# Ends the console from its main window; whatever stands in front of that would not let it end.
end_console() {
  local status=0
  see_main
  xdotool key ctrl+q
  wait_until "the console's end" has_ended
  wait "$console" || status=$?
  console=
  [ $status = 0 ] || fail "the console ended with status $status"
  expect_sound
}

leave() {
  [ -z "$console" ] || kill "$console" 2>/dev/null || true
  restore_settings
  rm -rf "$folder"
}
