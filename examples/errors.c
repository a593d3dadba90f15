/*
 * What errors look like: a record that the caller owns, printing, a handler, and what happens without a record.
 */
#define _POSIX_C_SOURCE 200809L

#include <kor/c05.h>
#include <kor/x04.h>

#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

static double positive(double x) { return x * x + 1.0; }
static double pole(double x) { return 1.0 / (x - 1.0); }
static double cubic(double x) { return x * x * x - 2.0 * x - 5.0; }

static void log_report(const char *text, Integer code, const char *routine)
{
    (void)text;
    printf("handler: %s reports %ld\n", routine, (long)code);
}

int main(void)
{
    KorError fail = {0}; /* cleared once; the library keeps it up to date from then on */
    double x = 0.0;

    /* The library prints on the standard error stream; here it shall appear in order with the rest. */
    setvbuf(stdout, NULL, _IONBF, 0);
    dup2(STDOUT_FILENO, STDERR_FILENO);

    puts("1. A record tells what went wrong: a code, and a text with its key.");
    c05adc(0.0, 2.0, &x, positive, 1e-10, 0.0, &fail);
    printf("code %ld, which is %s\n%s\n", (long)fail.code, fail.code == NE_FUNC_END_VAL ? "NE_FUNC_END_VAL" : "another",
           fail.message);
    printf("the code of a key by name: %ld\n\n", (long)x04mbc("NE_FUNC_END_VAL"));

    puts("2. With print set the library prints as well.");
    fail.print = 1;
    c05adc(0.0, 2.0, &x, positive, -1.0, 0.0, &fail);
    fail.print = 0;

    puts("\n3. A handler sees every report, success (0) included.");
    fail.handler = log_report;
    c05adc(0.0, 2.0, &x, pole, 1e-12, 0.0, &fail);
    printf("%s\n", fail.message);
    c05adc(0.5, 0.5, &x, pole, 1e-12, 0.0, &fail);
    printf("%s\n", fail.message);
    c05adc(2.0, 3.0, &x, cubic, 1e-12, 0.0, &fail);
    printf("x = %.10f\n", x);

    puts("\n4. Without a record an error ends the process. Here a child is sent:");
    const pid_t child = fork();
    if (child == 0) {
        c05adc(0.0, 2.0, &x, positive, 1e-10, 0.0, NULL);
        puts("never reached");
        return 0;
    }
    int status = 0;
    waitpid(child, &status, 0);
    printf("it ended with status %d\n", WIFEXITED(status) ? WEXITSTATUS(status) : -1);
    return 0;
}
