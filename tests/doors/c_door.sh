#!/bin/sh
# c_door.sh PROGRAM SCRIPTS: runs every script through the C door, each in a folder of its own.
failed=0
count=0
for script in "$2"/*; do
  folder=$(mktemp -d)
  "$1" "$folder" "$script" || failed=1
  rm -rf "$folder"
  count=$((count + 1))
done
echo "$count scripts"
[ "$count" -gt 0 ] && exit $failed
