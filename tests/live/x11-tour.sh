#!/usr/bin/env bash
# Walks the demo host's first guide with the pointer and keyboard of an X server: x11-tour.sh TRAILBOOK
# Once to its end, answering "Continue" after a click beside the target, and once with "Exit".
set -u
program=$1
openbox >/dev/null 2>&1 &
sleep 1

fail() { echo "FAILED: $*"; exit 1; }

# tour ANSWER: one run; at step 2 a click beside the target, whose prompt is answered by the keys in ANSWER.
# Prints what the program announced.
tour() {
  local answer=$1 what step x y asked=no
  while read -r what step x y; do
    echo "$what ${step:-}"
    [ "$what" = step ] || continue
    sleep 0.7
    if [ "$step" = 2 ] && [ "$asked" = no ]; then
      asked=yes
      xdotool mousemove "$((x + 40))" "$((y + 400))" click 1
      sleep 1
      # shellcheck disable=SC2086
      xdotool key --delay 100 $answer
      sleep 0.7
    fi
    xdotool mousemove "$x" "$y" click 1
    sleep 0.2
    [ "$step" = 3 ] && xdotool key Escape
  done < <("$program" --announce --guide "First steps" 2>/dev/null)
  return 0
}

seen=$(tour Return | tr '\n' ';')
echo "continue: $seen"
[ "$seen" = "step 1;step 2;step 3;step 4;step 5;step 6;step 7;completed ;" ] || fail "the tour with Continue"
seen=$(tour "Tab space" | tr '\n' ';')
echo "exit: $seen"
[ "$seen" = "step 1;step 2;ended ;" ] || fail "the tour with Exit"
