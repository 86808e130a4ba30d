# Runs a program and interrupts it as Ctrl+C does, once a file is there; ends with its exit code.
# Usage: interrupt.sh FILE PROGRAM [ARGUMENT...]
file=$1
shift
"$@" &
while [ ! -s "$file" ] && kill -0 $!; do sleep 0.05; done
sleep 0.2
kill -INT $!
wait $!
