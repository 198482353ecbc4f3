# Sourced: user_language prints the language of the user's messages, "ru" or "en". The locale is the first of LC_ALL,
# LC_MESSAGES and LANG that is set. LANGUAGE, a list of languages, goes before it, except in the C locale.
user_language() {
    local wish locale=${LC_ALL:-${LC_MESSAGES:-${LANG:-C}}}
    case "$locale" in
        C | C.* | POSIX) echo en && return ;;
    esac
    for wish in ${LANGUAGE:+${LANGUAGE//:/ }} "$locale"; do
        case "$wish" in
            ru | ru[_.@]*) echo ru && return ;;
            en | en[_.@]*) break ;;
        esac
    done
    echo en
}
