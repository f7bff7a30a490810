# Doxygen input filter for the public headers, which document a group of declarations once:
# - an accessor pair above its getter: a setter that follows within three lines (`x()` or
#   `isX()`, perhaps an adder, then `setX(...)`) gets the getter's text;
# - overloads above the first: one that follows a declaration of the same name says so;
# - equality above operator==: an operator!= within a few lines of it says that it negates it;
# - an exchange object class's type name, s_objectName, says what it is.
# Lines are neither added nor removed, so the line numbers Doxygen reports stay true.
function nameOf(text) {
    if (match(text, /operator[^(]*\(/) || match(text, /[A-Za-z_~][A-Za-z0-9_]*[ \t]*\(/)) {
        text = substr(text, RSTART, RLENGTH - 1)
        sub(/[ \t]+$/, "", text)
        return text
    }
    return ""
}
{
    line = $0
    name = $0 ~ /^[ \t]*\/\// ? "" : nameOf($0)
    documented = line ~ /\/\/\// || previous ~ /^[ \t]*\/\/\//
    if (!documented && name ~ /^set[A-Z]/) {
        property = tolower(substr(name, 4))
        for (back = 1; back <= 3; ++back) {
            getter = recent[back]
            if (tolower(getter) == property || tolower(getter) == "is" property) {
                line = line " ///< @copydoc " getter
                break
            }
        }
    } else if (!documented && name == "operator!=" && NR - equality <= 6) {
        line = line " ///< Whether the two differ (the negation of operator==)."
    } else if (!documented && $0 ~ /static constexpr wchar_t s_objectName\[\]/) {
        line = line " ///< The type name of the class's objects (objName())."
    } else if (!documented && name != "" && name == previousName) {
        line = line " ///< @overload"
    }
    if (name == "operator==")
        equality = NR
    previous = $0
    previousName = name
    recent[3] = recent[2]
    recent[2] = recent[1]
    recent[1] = name
    print line
}
