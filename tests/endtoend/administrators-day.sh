#!/usr/bin/env bash
# A day of an administrator, through the programs themselves: administrators-day.sh FOLDER-OF-THE-PROGRAMS
# From a new directory over domains, users, groups and roles to their end; whatever a window shows, it is the file that
# counts. Needs a display with a window manager (scripts/with-display.sh).
set -euo pipefail
programs=$1
folder=$(mktemp -d)
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
. "$here/person.sh"
trap leave EXIT
keep_settings

password='a password for tests'
members='SELECT u.name FROM group_member JOIN user u ON u.id = user JOIN grp g ON g.id = grp'

# Nodes of the tree, from its top.
domains_node() {
  to_work
  press Home KP_Add Down
}
roles_node() {
  to_work
  press Home KP_Add End Up
}
users_node() {
  to_work
  press Home KP_Add End
}
domain_node() {
  domains_node
  press KP_Add Down
}
groups_node() {
  domain_node
  press KP_Add Down
}
domain_users_node() {
  groups_node
  press Down
}
# From the tree to the first row of the list, past the search box.
to_list() { press F6 F6 Home; }

# new_user NAME FULL-NAME
new_user() {
  press ctrl+n
  see "New user"
  write "$1"
  press alt+f
  write "$2"
  press alt+p
  write "$password"
  press alt+r
  write "$password"
  press Return
  expect_done "SELECT full_name, enabled, password <> '' FROM user WHERE name = '$1'" "$2|1|1"
}

begin "create the directory"
printf '%s\n' "$password" | run_program mindloft-directory create --name root --password-stdin "$named_directory" >/dev/null
expect_stored "SELECT name FROM user" root
expect_sound

begin "a wrong password, then the right one"
start_console
write root
press Tab
write 'not the password'
remember_height
press Return
wait_until "the window to tell that the password is wrong" has_grown
write "$password"
press Return
expect_done "SELECT count(*) FROM journal WHERE action = 'login'" 1

begin "create a knowledge domain"
domains_node
press ctrl+n
see "New knowledge domain"
write Physics
press Return
expect_done "SELECT name FROM domain" Physics

begin "create two users"
users_node
new_user anna 'Anna Archer'
users_node
new_user bert 'Bert Baker'
expect_info users 3

begin "give both access to the domain"
domain_users_node
press ctrl+n
see 'Add users to the knowledge domain "Physics"'
press Down Home shift+Down Return
expect_done "SELECT u.name FROM domain_user JOIN user u ON u.id = user ORDER BY 1" $'anna\nbert'

begin "create a group and add a member"
groups_node
press ctrl+n
see "New group"
write Readers
press alt+r "$next_page" alt+m
see "Select users"
press Home Return
see "New group"
press alt+a # the button that opened the picker has the keyboard
see "Properties: Readers"
press Escape
expect_done "SELECT name, privileges FROM grp WHERE kind <> 5" 'Readers|1'
expect_stored "$members WHERE g.name = 'Readers'" anna

begin "give a user a role"
roles_node
to_list
press End alt+Return
see "Properties: User managers"
press "$next_page" alt+m
see "Select users"
press Home Down Return # anna, bert, root
see "Properties: User managers"
press alt+a # applied: the sheet stays open
expect_stored "SELECT r.name FROM role_member JOIN role r ON r.id = role JOIN user u ON u.id = user WHERE u.name = 'bert'" "User managers"
press Escape
end_console
expect_info "group members" 1
expect_info "domain users" 2

begin "anna may look, and change nothing"
before=$(changes)
log_in anna "$password"
for node in domains_node groups_node domain_users_node users_node; do
  $node
  press ctrl+n
done
users_node
to_list
for row in anna bert; do
  [ $row = anna ] || press Down
  press Delete
  see "Mindloft: Information"
  press Return
  see_main
done
press alt+Return
see "Properties: bert"
write x
press alt+f
write 'Not Bert'
press Return
see_main
end_console
[ "$(changes)" = "$before" ] || fail "anna changed $(($(changes) - before)) things: $(ask_file 'SELECT who, action, name FROM journal')"
expect_stored "SELECT full_name FROM user WHERE name = 'bert'" 'Bert Baker'

begin "bert manages users and no domains"
log_in bert "$password"
domains_node
press ctrl+n
users_node
new_user carl 'Carl Clerk'
end_console
expect_stored "SELECT who FROM journal WHERE action = 'create' AND name = 'carl'" bert

begin "delete the group, the domain and the users"
log_in root "$password"
groups_node
to_list
press End Delete
see "Confirm deletion"
press alt+n
expect_done "$members WHERE g.name = 'Readers'" anna
press Delete
see "Confirm deletion"
press alt+y
expect_done "SELECT count(*) FROM grp WHERE kind <> 5" 0
expect_stored "SELECT count(*) FROM group_member" 0
domain_node
press Delete
see "Confirm deletion"
press alt+y
expect_done "SELECT count(*) FROM domain" 0
expect_stored "SELECT count(*) FROM domain_user" 0
users_node
click_at 75 60 # below the rows
press Home shift+Down shift+Down Delete # anna, bert and carl
see "Confirm deletion"
press alt+y
expect_done "SELECT name FROM user" root
end_console
expect_info users 1
expect_info domains 0
expect_info groups 0
begin "done"
