#error "the installed headers must not need nlohmann JSON"
