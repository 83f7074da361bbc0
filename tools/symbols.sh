# shellcheck shell=bash disable=SC2034,SC2154  # sourced by ./run, which sets the paths and reads the counters
# The names that a program which is linked statically shares with the library.

# Each name that an object file of the three modules defines for others must be one of a public
# header, or stand in a namespace of the library: a program may use all other names itself. The
# objects are those of the DLLs, whose sources are those of the static libraries.
check_symbols() {
    local log=$build/symbols.log public=$build/symbols-public.txt objects
    public_headers | xargs cat | grep -oE '[A-Za-z_][A-Za-z0-9_]*' | sort -u >"$public"
    # Not the DLL's own start-up.
    mapfile -t objects < <(find "$build"/win64/{framework/CMakeFiles/framework,companion/CMakeFiles/companion,CMakeFiles/fieldkit}.dir \
        -name '*.obj' -not -path '*/module/*')
    ((${#objects[@]} > 0)) || die 'there are no object files of the library'
    x86_64-w64-mingw32-nm -C --defined-only --extern-only "${objects[@]}" | private_names "$public" >"$log"
    if [[ -s $log ]]; then
        failed=$((failed + 1))
        printf '%-6s %-20s names that are not public: %s\n' package symbols: "$(paste -sd' ' "$log")"
    else
        passed=$((passed + 1))
        printf '%-6s %-20s %5d passed, 0 failed\n' package symbols: 1
    fi
}

# Of what the install rules of cmake/Install.cmake take.
public_headers() {
    find "$root"/{api,framework,geometry,survey,util,controls,dialogs,resources,testkit} -maxdepth 1 -name '*.h'
    printf '%s\n' "$root/companion/Tesuvo.h"
}

# private_names PUBLIC: reads what nm says; the outermost name of each symbol, if it is not public.
private_names() {
    awk -v public="$1" '
        BEGIN { while ((getline name < public) > 0) known[name] }
        !/^[0-9a-f]+ [A-Z] / || $2 == "N" { next }
        {
            sub(/^[0-9a-f]+ [A-Z] /, "")
            # What the compiler makes of a class or a function, and sections and tables of its own.
            gsub(/(vtable|typeinfo name|typeinfo|guard variable|VTT|construction vtable|non-virtual thunk|virtual thunk|covariant return thunk|initializer|TLS [a-z]+ function) (for|to) /, "")
            if (/^[.]|^__imp_/) next
            # Of the C library as inline functions; what the system calls when a thread ends.
            if (/^v?sn?printf([(]|$)/ || $0 == "FieldkitThreadCallback") next
            sub(/\(anonymous namespace\).*/, "std::")
            # A return type stands before the name of a template.
            name = $0
            if (name ~ /^(std|__gnu_cxx|__cxxabiv1|fieldkit)::/ || name ~ /^operator (new|delete)/) next
            while (match(name, /^[A-Za-z_0-9:]+(<[^()]*>)?[ *&]+(const[ *&]+)?[A-Za-z_]/) && name !~ /^operator/)
                name = substr(name, RSTART + RLENGTH - 1)
            if (name ~ /^(std|__gnu_cxx|fieldkit)::/) next
            match(name, /^[A-Za-z_~][A-Za-z0-9_]*/)
            name = substr(name, RSTART, RLENGTH)
            if (name != "" && name != "operator" && !(name in known) && !(name in seen)) { seen[name]; print name }
        }'
}
