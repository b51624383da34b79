# shellcheck shell=bash disable=SC2154
# The options hub and its sections.
