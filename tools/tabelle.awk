# The figures of the benchmarks beside their limits. First file: key | text | limit | max or min; second file: the
# programs' output, of which the lines KENNZAHL;key;ours;bare;unit count. Ends with 1 where a limit is broken or
# a figure has none.
function ohne_rand(s) { gsub(/^ +| +$/, "", s); return s }
function mit_einheit(wert, einheit) { return sprintf("%.4g %s", wert, einheit) }

NR == FNR {
    if ($0 !~ /^#/ && NF >= 4) {
        schluessel = ohne_rand($1)
        if (length(ohne_rand($2)) > breite) breite = length(ohne_rand($2))
        text[schluessel] = ohne_rand($2); grenze[schluessel] = ohne_rand($3) + 0; art[schluessel] = ohne_rand($4)
    }
    next
}
$1 == "KENNZAHL" {
    if (!kopf++) {
        printf "\n%-*s %14s %14s %9s %9s\n", breite, "", "ours", "bare", "figure", "limit"
    }
    wert = $4 == "" ? $3 : ($4 > 0 ? $3 / $4 : 0)
    gut = ($2 in grenze) && (art[$2] == "min" ? wert >= grenze[$2] : wert <= grenze[$2])
    if (!gut) schlecht = 1
    printf "%-*s %14s %14s %9.4g %s%8s  %s\n", breite, ($2 in text) ? text[$2] : $2, mit_einheit($3, $5), \
        $4 == "" ? "" : mit_einheit($4, $5), wert, art[$2] == "min" ? ">" : "<", \
        ($2 in grenze) ? grenze[$2] : "none", gut ? "ok" : "MISSED"
}
END { if (!kopf) { print "No figures"; exit 1 } exit schlecht }
