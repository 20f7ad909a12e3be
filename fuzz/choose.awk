# Reads the control file of a libFuzzer merge (the numbers of all inputs and of those that are there already, their
# names, and lines "FT input feature...") and prints the `most` inputs that together add most, the best first.

NR == 1 { inputs = $1; next }
NR == 2 { present = $1; next }
NR <= inputs + 2 { name[NR - 3] = $0; next }
$1 == "STARTED" { size[$2] = $3; next }
$1 == "FT" { input = $2; $1 = $2 = ""; features[input] = $0 }

function added(input,    all, count, i, sum) {
    count = split(features[input], all, " ")
    for (i = 1; i <= count; ++i)
        sum += !(all[i] in reached)
    return sum + 0
}

function take(input,    all, count, i) {
    count = split(features[input], all, " ")
    for (i = 1; i <= count; ++i)
        reached[all[i]]
}

END {
    for (i = 0; i < present; ++i)
        take(i)
    for (; most > 0; --most) {
        best = gain = 0
        for (i = present; i < inputs; ++i) {
            new = added(i)
            if (new > gain || (new > 0 && new == gain && size[i] < size[best])) {
                best = i
                gain = new
            }
        }
        if (gain == 0)
            exit
        take(best)
        print name[best]
    }
}
