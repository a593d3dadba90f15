/*
 * Ranking, sorting and searching records: the brightest stars.
 *
 * m01dsc ranks the records by whatever a comparator looks at and leaves them in place; m01zac turns ranks into the list of the
 * records in order; m01esc brings records, and arrays beside them, into that order; m01fsc searches what is sorted.
 */
#include <kor/m01.h>

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { MOST_STARS = 64 };

typedef struct {
    char name[16], letter[12], constellation[4];
    double magnitude; /* as seen from here */
    double parallax;  /* thousandths of a second of arc */
} Star;

/* The magnitude that a star would have at a distance of ten parsecs. */
static double absolute_magnitude(const Star *star)
{
    return star->magnitude + 5.0 + 5.0 * log10(star->parallax / 1000.0);
}

static Integer sign(double difference) { return (difference > 0.0) - (difference < 0.0); }

static Integer by_magnitude(const void *a, const void *b)
{
    return sign(((const Star *)a)->magnitude - ((const Star *)b)->magnitude);
}

static Integer by_true_brightness(const void *a, const void *b)
{
    return sign(absolute_magnitude(a) - absolute_magnitude(b));
}

static Integer by_name(const void *a, const void *b)
{
    return strcmp(((const Star *)a)->name, ((const Star *)b)->name);
}

static Integer by_constellation(const void *a, const void *b)
{
    return strcmp(((const Star *)a)->constellation, ((const Star *)b)->constellation);
}

/* The key of a search need not be a record: the comparator gets it first, and an element second. */
static Integer name_and_star(const void *name, const void *star) { return strcmp(name, ((const Star *)star)->name); }

static void check(const KorError *fail)
{
    if (fail->code == NE_NOERROR) return;
    puts(fail->message);
    exit(EXIT_FAILURE);
}

static Integer read_stars(Star stars[])
{
    FILE *file = fopen("data/stars.txt", "r");
    char line[256];
    Integer n = 0;
    if (file == NULL) {
        puts("data/stars.txt is not here: please run this program in the folder examples");
        exit(EXIT_FAILURE);
    }
    while (n < MOST_STARS && fgets(line, sizeof line, file) != NULL) {
        Star *s = &stars[n];
        if (sscanf(line, "%15s %11s %3s %lf %lf", s->name, s->letter, s->constellation, &s->magnitude, &s->parallax) ==
            5)
            n++;
    }
    fclose(file);
    return n;
}

/* Sorts the records by a comparator: ranks, then indices, then the exchange of the records themselves. */
static void sort_stars(Star stars[], Integer n, Integer (*compare)(const void *, const void *))
{
    KorError fail = {0};
    Integer order[MOST_STARS];
    m01dsc(stars, n, sizeof stars[0], compare, Kor_Ascending, order, &fail);
    check(&fail);
    m01zac(order, n, &fail);
    check(&fail);
    m01esc(stars, n, sizeof stars[0], sizeof stars[0], order, &fail);
    check(&fail);
}

int main(void)
{
    Star stars[MOST_STARS];
    Integer n = read_stars(stars), seen[MOST_STARS], truly[MOST_STARS], order[MOST_STARS], i;
    KorError fail = {0};
    const char *wanted[] = {"Vega", "Polaris"};
    const Star orion = {"", "", "Ori", 0.0, 0.0};
    const Star *star;
    void *match, *first, *last;

    /* Two rankings of the same records, which stay where they are. */
    m01dsc(stars, n, sizeof stars[0], by_magnitude, Kor_Ascending, seen, &fail);
    check(&fail);
    m01dsc(stars, n, sizeof stars[0], by_true_brightness, Kor_Ascending, truly, &fail);
    check(&fail);
    memcpy(order, seen, sizeof order);
    m01zac(order, n, &fail);
    check(&fail);
    puts("The ten brightest stars, and what they would be all at one distance");
    puts("    star         magnitude   light years   place by true brightness");
    for (i = 0; i < 10; i++) {
        star = &stars[order[i]];
        printf("%3ld %-12s%10.2f%14.1f%15ld\n", (long)i + 1, star->name, star->magnitude, 3261.56 / star->parallax,
               (long)truly[order[i]] + 1);
    }

    puts("\nSearching by name");
    sort_stars(stars, n, by_name);
    for (i = 0; i < 2; i++) {
        if (m01fsc(wanted[i], stars, n, sizeof stars[0], name_and_star, Kor_Ascending, Kor_First, &match, &fail)) {
            star = match;
            printf("%s is %s in %s, of magnitude %.2f\n", star->name, star->letter, star->constellation,
                   star->magnitude);
        } else {
            check(&fail);
            star = match;
            printf("%s is not among them; the next name is %s\n", wanted[i], star != NULL ? star->name : "none");
        }
    }

    puts("\nAll stars of Orion, by the first and the last of equal keys; in order of name still, for the ranking is "
         "stable");
    sort_stars(stars, n, by_constellation);
    m01fsc(&orion, stars, n, sizeof stars[0], by_constellation, Kor_Ascending, Kor_First, &first, &fail);
    check(&fail);
    m01fsc(&orion, stars, n, sizeof stars[0], by_constellation, Kor_Ascending, Kor_Last, &last, &fail);
    check(&fail);
    for (star = first; star <= (const Star *)last; star++)
        printf("%-12s%-9s%5.2f\n", star->name, star->letter, star->magnitude);
    return 0;
}
