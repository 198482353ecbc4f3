# Sourced: user_language prints the language of the user's messages, "ru" or "en". The first that is set of LC_ALL,
# LC_MESSAGES and LANG names it; LANGUAGE, a list of wishes, goes before it unless that is the C locale.
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
