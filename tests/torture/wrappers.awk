# SPDX-License-Identifier: MIT
# Makes, of the declarations of the public header, functions of the same names that stand before the library's: each
# calls the library's and then says that a call is over. With -v list=1: only the names, as entries of a table.
/^ZELGUI_API / { declaration = "" ; isInside = 1 }
isInside { sub(/^ +/, ""); declaration = declaration (declaration == "" ? "" : " ") $0 }
isInside && /;$/ {
    isInside = 0
    sub(/^ZELGUI_API /, "", declaration)
    match(declaration, /ZelGUI[A-Za-z]+\(/)
    result = substr(declaration, 1, RSTART - 1)
    name = substr(declaration, RSTART, RLENGTH - 1)
    parameters = substr(declaration, RSTART + RLENGTH)
    sub(/\);$/, "", parameters)
    if (list) {
        print "ENTRY(" name ")"
        next
    }
    arguments = ""
    count = parameters == "void" ? 0 : split(parameters, parts, /, */)
    for (i = 1; i <= count; ++i) {
        match(parts[i], /[A-Za-z0-9_]+$/)
        arguments = arguments (i > 1 ? ", " : "") substr(parts[i], RSTART)
    }
    print result name "(" parameters ")\n{"
    print "    static const auto original = ScarceHost::originalOf(&" name ", \"" name "\");"
    print "    const torture::CallEnd callEnd;"
    print "    return original(" arguments ");\n}\n"
}
