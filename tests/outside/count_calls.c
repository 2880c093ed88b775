/* Somebody else's program in C: has a class file tell a tracker of its calls, and says how long it is then. */
#include <stdio.h>
#include <stdlib.h>
#include <vantrel_rewriter.h>

int main(int argument_count, char** arguments) {
    unsigned char class_file[65536];
    struct VantrelRewriterOptions options = {0};
    struct VantrelRewriterResult result = {0};
    FILE* file = argument_count == 2 ? fopen(arguments[1], "rb") : NULL;
    size_t length;
    if (file == NULL) {
        return EXIT_FAILURE;
    }
    length = fread(class_file, 1, sizeof class_file, file);
    fclose(file);
    options.size = sizeof options;
    options.tracker_class = "com/x/Tracker";
    options.call_tracker = "called";
    result.size = sizeof result;
    if (vantrel_rewriter_rewrite(class_file, length, &options, &result) != VANTREL_REWRITER_REWRITTEN) {
        printf("%s\n", result.sentence);
        return EXIT_FAILURE;
    }
    printf("%s is %s\n", result.class_name, result.length > length ? "longer" : "as long");
    vantrel_rewriter_release(&result);
    return EXIT_SUCCESS;
}
