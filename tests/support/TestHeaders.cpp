// Nothing: a target for precompiled headers has a source.
