#!/bin/sh
# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

seq 8 | parallel --sshlogin alpha,beta,gamma --jobs 1 --retries 3 --joblog "$1.joblog" \
    velkora-batch run --plan "$1" --part {} --quiet
