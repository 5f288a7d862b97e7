#!/usr/bin/env bash
# Makes the buttons' sounds anew, always the same bytes: two soft ticks, 16 bits mono at 22050 Hz. Each is a tone that
# rises within a millisecond and dies away, so that it neither begins nor ends with a crack.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../resources/sounds"
perl -e '
  sub tick {
    my ($name, $hertz, $loudness, $milliseconds) = @_;
    my ($rate, $samples) = (22050, "");
    my $count = int($rate * $milliseconds / 1000);
    for my $n (0 .. $count - 1) {
      my $time = $n / $rate;
      my $rise = $time < 0.001 ? $time / 0.001 : 1;
      my $fall = exp(-5 * $n / $count) * (1 - $n / $count);
      $samples .= pack("s<", int(32767 * $loudness * $rise * $fall * sin(6.283185307179586 * $hertz * $time)));
    }
    open(my $file, ">:raw", $name) or die "$name: $!";
    print $file pack("A4VA4A4VvvVVvvA4V", "RIFF", 36 + length $samples, "WAVE", "fmt ", 16, 1, 1, $rate, 2 * $rate, 2,
                     16, "data", length $samples), $samples;
    close($file) or die "$name: $!";
  }
  tick("over.wav", 1800, 0.08, 14);
  tick("click.wav", 1100, 0.25, 30);
'
