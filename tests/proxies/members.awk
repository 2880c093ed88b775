# Lists what the proxies hold, as C++ macro calls, a member a line, for tests that walk them all:
#
#   PROXY(C, "internal/name")                                         each proxy
#   PROXY_FIELD(C, "internal/name", KIND, name, "descriptor")         each cached field, in the order of Init
#   PROXY_METHOD(C, "internal/name", KIND, "name", "descriptor", variable, function)
#                                              each cached method; no function for one that has no wrapper
#
# Whoever includes the list defines the macros that it needs; the list undefines them at its end.
#
# KIND is CONSTRUCTOR, METHOD, STATIC_METHOD, FIELD or STATIC_FIELD. Run over the header and then the source of a proxy,
# pair after pair. What is cached comes from the header's variables, what is wrapped from its prototypes and the
# comments after them, and what is looked up from the source's Init.

function end_of_proxy(    i, m) {
    if (class_name == "") {
        return
    }
    printf "PROXY(%s, \"%s\")\n", simple_name, class_name
    printf "%s", fields
    if (prototypes > 0 && prototypes != members) {
        printf "#error \"%s: %d members, %d wrappers\"\n", simple_name, members, prototypes
    }
    for (i = 1; i <= members; i++) {
        m = simple_name ", \"" class_name "\", " kind[i] ", \"" name[i] "\", "
        printf "PROXY_METHOD(%s\"%s\", %s, %s)\n", m, (prototypes > 0 ? descriptor[i] : looked_up[name[i]]),
            variable[i], (prototypes > 0 ? wrapper[i] : "")
    }
}

FNR == 1 && FILENAME ~ /\.h$/ {
    end_of_proxy()
    members = prototypes = 0
    fields = class_name = ""
}

/^\textern CACHE_JAVA_CLASS\(/ {
    split($0, part, /[()]/)
    simple_name = part[2]
}

# extern CACHE_JAVA_STATIC_METHOD(Thread, sleep, 21);   extern CACHE_JAVA_CONSTRUCTOR(Thread, 0);
/^\textern CACHE_JAVA_(CONSTRUCTOR|METHOD|STATIC_METHOD)\(/ {
    split($0, part, /CACHE_JAVA_|[(), ]+/)
    members++
    kind[members] = part[3]
    if (kind[members] == "CONSTRUCTOR") {
        name[members] = "<init>"
        variable[members] = "Constructor" part[4] part[5]
    } else {
        name[members] = part[5]
        variable[members] = part[4] "_" part[5] part[6]
    }
}

# 	jobject getStackTrace(JNIEnv *env, jobject _this); //15 ()[Ljava/lang/StackTraceElement;
/^\t[a-zA-Z]+ [A-Za-z0-9_]+\(JNIEnv \*env.*\); \/\/[0-9]+ \(/ {
    prototypes++
    descriptor[prototypes] = $NF
    split($0, part, /[\t (]/)
    wrapper[prototypes] = part[3]
}

# 		INIT_CACHE_STATIC_FIELD(jni_env, Thread, MIN_PRIORITY, "I");
/^\t\tINIT_CACHE(_STATIC)?_FIELD\(jni_env/ {
    split($0, part, /INIT_CACHE_|[(), ]+/)
    split($0, quoted, "\"")
    fields = fields "PROXY_FIELD(" simple_name ", \"" class_name "\", " part[2] ", " part[5] ", \"" quoted[2] "\")\n"
}
/^\t\tINIT_CACHE(_STATIC)?_METHOD\(jni_env/ {
    split($0, part, /[(), ]+/)
    split($0, quoted, "\"")
    looked_up[part[4]] = quoted[2]
}
/^\t\tINIT_CACHE_CLASS\(jni_env/ {
    split($0, quoted, "\"")
    class_name = quoted[2]
}

BEGIN {
    split("PROXY PROXY_FIELD PROXY_METHOD", macros, " ")
    for (i = 1; i <= 3; i++) {
        printf "#ifndef %s\n#define %s(...)\n#endif\n", macros[i], macros[i]
    }
}

END {
    end_of_proxy()
    for (i = 1; i <= 3; i++) {
        printf "#undef %s\n", macros[i]
    }
}
